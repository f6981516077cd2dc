#pragma once
// What the board-test screen tests share: a session on a throw-away copy of the shipped
// Config.vkt, a scripted phone that answers each command with the text the test gave it, and
// the exchange that runs between them, stepped by hand instead of by its timers.

#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "Session.h"
#include "TestScreen.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

struct BoardBench
{
    QTemporaryDir dir;
    QString path;
    Session session;
    FakeSerialPort port;
    ConsoleExchange exchange;
    FakeDialogs dialogs;
    ScreenContext context{session, exchange, dialogs};
    // The answer lines of each command; a command not listed gets no answer at all.
    QHash<QByteArray, QByteArray> answers;

    static QString shippedConfig() { return QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"); }

    BoardBench() : path(dir.filePath(QStringLiteral("Config.vkt"))), session(path), exchange(session, port)
    {
        QFile::copy(shippedConfig(), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        session.setModelo(QStringLiteral("IP 7"));
        session.setConnectionFlag(QStringLiteral("1"));
        port.open(QStringLiteral("/dev/fake"));
        port.onWrite = [this](const QByteArray &data) {
            const QByteArray command = data.chopped(1);
            if (answers.contains(command))
                port.buffer += data + "\n" + answers.value(command) + "[0000001A:0000BEEF] :-) ";
        };
    }

    // Runs the exchange to its end, as the main window's timers would.
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }

    QStringList commandsWritten() const
    {
        QStringList out;
        for (const QByteArray &w : port.written)
            out << QString::fromUtf8(w);
        return out;
    }
};
