#include "ConsoleExchange.h"

#include "SerialPort.h"
#include "Session.h"

ConsoleExchange::ConsoleExchange(Session &session, SerialPort &port, QObject *parent)
    : QObject(parent), m_session(session), m_port(port)
{
    // Created stopped; only a send starts them. Precise: a coarse timer may fire 5 % early or
    // late, which made a short exchange last anywhere from 1.90 s to 2.10 s instead of 2.0 s.
    m_timer1.setInterval(SliceIntervalMs);
    m_timer2.setInterval(SliceIntervalMs);
    m_timer1.setTimerType(Qt::PreciseTimer);
    m_timer2.setTimerType(Qt::PreciseTimer);
    connect(&m_timer1, &QTimer::timeout, this, &ConsoleExchange::onTimer1);
    connect(&m_timer2, &QTimer::timeout, this, &ConsoleExchange::onTimer2);
    // A pulled cable must not leave the screens waiting for silence that never comes.
    connect(&m_port, &SerialPort::lost, this, &ConsoleExchange::endNow);
}

void ConsoleExchange::EnviaComando()
{
    if (m_commandField.isEmpty())
        return;
    m_session.setConnectionFlag(QStringLiteral("3"));
    emit captionChanged(m_session.Traduz(QStringLiteral("Comunicando")) + QStringLiteral("..."));
    m_port.write(m_commandField.toUtf8() + '\r');
    // A send during a running exchange keeps the first-slice timer's rhythm.
    if (!m_timer1.isActive())
        m_timer1.start();
}

void ConsoleExchange::clearConsole()
{
    m_console.clear();
    emit consoleCleared();
    mirror();
}

void ConsoleExchange::onTimer1()
{
    // Every answer starts on a fresh console with one empty line.
    clearConsole();
    append(QStringLiteral("\r\n"));
    const QByteArray slice = m_port.readAll();
    if (slice.isEmpty()) {
        m_timer1.stop();
        endOfAnswer();
        return;
    }
    m_slices = 1;
    AdicionaDadosConsole(slice);
    m_timer1.stop();
    m_timer2.start();
}

void ConsoleExchange::onTimer2()
{
    const QByteArray slice = m_port.readAll();
    if (m_slices == MaxSlices || (slice.isEmpty() && m_slices > 2)) {
        m_timer2.stop();
        endOfAnswer();
    }
    // The slice of the finishing tick still lands in the console, after the hand-over: the
    // validation of a fresh connection reads the console, not the handed-over copy.
    AdicionaDadosConsole(slice);
    ++m_slices;
}

void ConsoleExchange::endNow()
{
    if (!running())
        return;
    m_timer1.stop();
    m_timer2.stop();
    AdicionaDadosConsole(m_port.readAll());
    endOfAnswer();
}

void ConsoleExchange::restoreCaption()
{
    emit captionChanged(m_session.windowTitle());
}

QString ConsoleExchange::convertSlice(const QString &text)
{
    QString out;
    out.reserve(text.size() + text.size() / 16 + 2);
    for (const QChar c : text) {
        if (c == u'\n')
            out += QStringLiteral("\r\n");
        else if (c.isNull())
            out += QChar::ReplacementCharacter;
        else
            out += c;
    }
    return out;
}

void ConsoleExchange::AdicionaDadosConsole(const QByteArray &slice)
{
    if (slice.isEmpty())
        return;
    // The decoder keeps its state from one slice to the next, so a character whose bytes
    // straddle two slices still comes out whole; invalid bytes become U+FFFD.
    append(convertSlice(m_decoder.decode(slice)));
}

void ConsoleExchange::append(const QString &converted)
{
    if (converted.isEmpty())
        return;
    m_console += converted;
    emit consoleAppended(converted);
    mirror();
}

void ConsoleExchange::mirror()
{
    if (!m_session.liveEcho())
        return;
    const AnswerReceiver *receiver = receiverOf(m_session.screenId());
    if (receiver && receiver->liveEcho)
        receiver->liveEcho(m_console);
}

const AnswerReceiver *ConsoleExchange::receiverOf(const QString &screenId) const
{
    const auto it = m_receivers.constFind(screenId);
    if (it == m_receivers.cend() || (it->owned && !it->owner))
        return nullptr;
    return &it->receiver;
}

void ConsoleExchange::endOfAnswer()
{
    restoreCaption();
    m_session.setLiveEcho(false);

    // Copy the receiver first: a hand-over may open or close screens and so change the table.
    const AnswerReceiver *receiver = receiverOf(m_session.screenId());
    if (receiver && receiver->handOver) {
        const auto handOver = receiver->handOver;
        handOver(m_console);
    }
    // Cleared only after the hand-over: the receiving screen must still see that this answer
    // was a long one, or the flag could never keep a long answer out of the comparison.
    m_session.setLongAnswer(false);

    m_session.setScreenId(QStringLiteral("0"));
    m_session.setConnectionFlag(QStringLiteral("1"));
    emit answerFinished(m_console);
}

void ConsoleExchange::registerReceiver(const QString &screenId, QObject *owner, AnswerReceiver receiver)
{
    m_receivers.insert(screenId, Registered{owner, owner != nullptr, std::move(receiver)});
}

void ConsoleExchange::unregisterReceiver(const QString &screenId)
{
    m_receivers.remove(screenId);
}
