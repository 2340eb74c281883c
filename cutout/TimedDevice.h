// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIODevice>

#include <ctime>

namespace cutout {

/// Reads from another device until the program has worked on it for too long; then it says that it can't
/// read. Data of a few megabytes can unpack to hundreds of gigabytes behind the last pixel, and a decoder
/// that has begun can be stopped in no other way.
class TimedDevice : public QIODevice
{
public:
    TimedDevice(QIODevice &source, int seconds)
        : m_source(source), m_end(std::clock() + std::clock_t{CLOCKS_PER_SEC} * seconds)
    {
        open(QIODevice::ReadOnly);
    }

    /// Whether something could not be read for this reason.
    [[nodiscard]] bool ranOut() const { return m_ranOut; }
    [[nodiscard]] qint64 size() const override { return m_source.size(); }
    bool seek(qint64 position) override { return QIODevice::seek(position) && m_source.seek(position); }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        m_ranOut = m_ranOut || std::clock() > m_end; // the processor's time: a busy machine changes nothing
        return m_ranOut ? -1 : m_source.read(data, size);
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    QIODevice &m_source;
    std::clock_t m_end;
    bool m_ranOut = false;
};

} // namespace cutout
