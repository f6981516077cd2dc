#pragma once

#include "AnswerStore.h"
#include "SimCatalog.h"

#include <QByteArray>

// The simulated phone's console, without any I/O: bytes from the tool go in, the bytes the
// phone would send come out. Keeping it free of file descriptors and timers lets the tests
// check framing and every fault profile synchronously; the pty server only moves bytes.

class Board {
public:
    Board(AnswerStore store, SimModel model, Profile profile);

    // Bytes written by the tool. A CR (or a LF not preceded by CR) ends a command.
    void receive(const QByteArray &bytes);

    // Up to maxBytes of what the phone sends next. A chatty board invents more as it goes.
    QByteArray takeOutput(qsizetype maxBytes);
    bool hasOutput() const;

    // True once an unplugging board has sent everything up to the point where the cable goes.
    bool pulledPlug() const { return m_unplugArmed && m_pending.isEmpty(); }

    // The complete body (without echo and prompt) the board gives for a command; public so
    // that tests can compare profiles answer by answer.
    QByteArray answerBody(const QString &command);

    static QByteArray notFound(const QString &command);
    // The bus on which the i2c-missing board loses its last device.
    static int missingI2cBus(const QString &model);

private:
    void runCommand(const QByteArray &received);
    QByteArray prompt();
    QByteArray applyFaults(const QString &normalised, QByteArray body);
    QByteArray lowerRail(QByteArray body) const;
    QByteArray dropLastI2cDevice(QByteArray body) const;

    static QByteArray sprinkleGarbage(const QByteArray &body);
    QByteArray chatter();

    AnswerStore m_store;
    SimModel m_model;
    Profile m_profile;
    QByteArray m_line;
    bool m_lastWasCr = false;
    QByteArray m_pending;
    quint32 m_commandCount = 0;
    quint32 m_chatterCount = 0;
    bool m_rejected = false;
    bool m_talking = false;
    bool m_unplugArmed = false;
};
