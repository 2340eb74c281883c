// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "resources/Resources.h"

#include <QDir>

// Outside any namespace, as the macro wants it. By a call, since the linker drops a static library's own
// registration.
static void registerCompiledInFiles()
{
    Q_INIT_RESOURCE(ornevo);
    Q_INIT_RESOURCE(translations);
}

namespace resources {

void registerAll()
{
    registerCompiledInFiles();
}

} // namespace resources
