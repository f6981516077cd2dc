#pragma once
// What the screen tests share: a session on a throw-away copy of the shipped Config.vkt, a phone
// behind the serial interface (answering each command with the lines a test gave it, or a whole
// simulated board), and the exchange between them, stepped by hand instead of by its timers.

#include "Board.h"
#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "FakeShell.h"
#include "ScreenControls.h"
#include "Session.h"
#include "SimCatalog.h"
#include "TestScreen.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <memory>

struct ScreenBench
{
    QTemporaryDir dir;
    QString path;
    Session session;
    FakeSerialPort port;
    ConsoleExchange exchange;
    FakeDialogs dialogs;
    FakeShell shell;
    ScreenContext context{session, exchange, dialogs};
    // The answer lines of each command; a command not listed gets no answer at all.
    QHash<QByteArray, QByteArray> answers;
    // When set, the simulated board answers instead of the list above.
    std::unique_ptr<Board> board;

    static QString shippedConfig() { return QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"); }

    explicit ScreenBench(const QString &model = QStringLiteral("IP 7"))
        : path(dir.filePath(QStringLiteral("Config.vkt"))), session(path), exchange(session, port)
    {
        QFile::copy(shippedConfig(), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        session.setModelo(model);
        session.setConnectionFlag(QStringLiteral("1"));
        port.open(QStringLiteral("/dev/fake"));
        port.onWrite = [this](const QByteArray &data) {
            if (board) {
                board->receive(data);
                while (board->hasOutput())
                    port.buffer += board->takeOutput(1 << 20);
                return;
            }
            const QByteArray command = data.chopped(1);
            if (answers.contains(command))
                port.buffer += data + "\n" + answers.value(command) + "[0000001A:0000BEEF] :-) ";
        };
    }

    void simulate(const QString &model, Profile profile = Profile::Good)
    {
        board = std::make_unique<Board>(AnswerStore(), *SimCatalog::modelByName(model), profile);
    }

    // Runs the exchange to its end, as the main window's timers would.
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }

    // The commands written so far, without their CR.
    QStringList sent() const
    {
        QStringList out;
        for (const QByteArray &w : port.written)
            out << QString::fromUtf8(w.chopped(1));
        return out;
    }
};
