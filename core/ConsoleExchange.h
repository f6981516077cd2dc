#pragma once
// The one command/answer exchange with the phone: a command goes out with a carriage return,
// the answer is collected in 500 ms slices until a silent slice (after at least two) or 50
// slices, then handed to the screen named by the session's screen identifier. Everything is
// driven by two timers on the GUI thread; their tick handlers are public so tests can step them.

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringDecoder>
#include <QTimer>
#include <functional>

class Session;
class SerialPort;

// What a screen registers under its screen identifier to receive finished answers.
struct AnswerReceiver
{
    // Copies the answer into the screen's answer box and runs its processing method.
    std::function<void(const QString &answer)> handOver;
    // Optional: mirrors the console while the live-echo flag is set.
    std::function<void(const QString &consoleSoFar)> liveEcho;
};

class ConsoleExchange : public QObject
{
    Q_OBJECT
public:
    static constexpr int SliceIntervalMs = 500;
    static constexpr int MaxSlices = 50;

    ConsoleExchange(Session &session, SerialPort &port, QObject *parent = nullptr);

    // The hidden command field of the main window: the next command to send.
    QString commandField() const { return m_commandField; }
    void setCommandField(const QString &command) { m_commandField = command; }

    // Sends the command field's text with a CR and starts collecting the answer.
    void EnviaComando();
    // Appends a received slice to the console, each LF becoming CR LF.
    void AdicionaDadosConsole(const QByteArray &slice);

    // Ends a running exchange at once with what has arrived (the device vanished); no-op when idle.
    void endNow();
    // Puts the main window caption back to the session's window title.
    void restoreCaption();

    // The console text of the current answer (txtConsole).
    const QString &console() const { return m_console; }
    void clearConsole();

    // A screen's receiver stays registered until `owner` is destroyed or it is replaced;
    // without an owner it stays until unregistered.
    void registerReceiver(const QString &screenId, QObject *owner, AnswerReceiver receiver);
    void unregisterReceiver(const QString &screenId);

    // Tick handlers, public so tests can drive them without waiting.
    void onTimer1();
    void onTimer2();

    // Each LF becomes CR LF, a CR already there stays, NUL becomes U+FFFD.
    static QString convertSlice(const QString &text);

    QTimer &timer1() { return m_timer1; }
    QTimer &timer2() { return m_timer2; }
    int sliceCount() const { return m_slices; }
    bool running() const { return m_timer1.isActive() || m_timer2.isActive(); }

signals:
    void consoleCleared();
    void consoleAppended(const QString &text); // the converted slice only, for linear appends
    void captionChanged(const QString &caption); // the main window caption during/after an answer
    void answerFinished(const QString &answer);  // after the hand-over, flag back at "1"

private:
    void endOfAnswer();
    void append(const QString &converted);
    void mirror();
    const AnswerReceiver *receiverOf(const QString &screenId) const;

    Session &m_session;
    SerialPort &m_port;
    QString m_commandField;
    QString m_console;
    QTimer m_timer1;
    QTimer m_timer2;
    quint8 m_slices = 0;
    QStringDecoder m_decoder{QStringDecoder::Utf8};
    struct Registered
    {
        QPointer<QObject> owner;
        bool owned = false;
        AnswerReceiver receiver;
    };
    QHash<QString, Registered> m_receivers;
};
