// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/MessageLog.h"
#include "tests/support/PlainDesktop.h"
#include "tests/support/Sandbox.h"

#include <QApplication>
#include <QImageReader>

/// A program without a screen, unless one is asked for, that keeps quiet and keeps its settings to itself.
class BenchmarkApplication
{
public:
    BenchmarkApplication(int &argc, char **argv) : m_application(prepared(argc), argv)
    {
        QImageReader::setAllocationLimit(0); // for what is decoded by QImage alone
    }

private:
    static int &prepared(int &argc)
    {
        testsupport::stayOffscreen();
        testsupport::printFatalMessagesOnly();
        return argc;
    }

    testsupport::Sandbox m_sandbox;
    QApplication m_application;
};
