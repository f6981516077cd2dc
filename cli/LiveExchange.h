#pragma once
// A live console for the command line: the serial port, the exchange with the main window's
// slices and timers, and the main window's own recognition of the model. Every command of
// vekto-cli that talks to a phone goes through it, so none of them has a rule of its own.

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "QtSerialPort.h"
#include "Session.h"

#include <QString>
#include <functional>
#include <optional>

class LiveExchange
{
public:
    explicit LiveExchange(const QString &dbPath);
    ~LiveExchange();

    // Opens the port for `exchange` without recognising the model. Empty when open; otherwise
    // the reason, naming the port.
    QString open(const QString &portName);

    // Connects exactly as the connect button does (validation, the model number answer, asking
    // again after a rejected first command) and returns the model name, or nothing. `onMessage`
    // receives each message key the main window would have shown. The port stays open.
    using MessageSink = std::function<void(const QString &key, const QString &porta)>;
    std::optional<QString> recogniseModel(const QString &portName, const MessageSink &onMessage = {});

    // One command and its whole answer: the console text exactly as the screen receives it
    // (carriage returns kept), so a saved copy is a valid answer file. Nothing when the device
    // vanished before the answer ended.
    std::optional<QString> exchange(const QString &command);

    bool lost() const { return m_lost; }
    // Why the model could not be looked up in the database (naming the file); empty when it could.
    const QString &databaseError() const { return m_databaseError; }
    Session &session() { return m_session; }
    // For a run of several exchanges driven by signals (the board check).
    ConsoleExchange &consoleExchange() { return m_exchange; }
    const QString &modelNumber() const { return m_modelNumber; }

private:
    QString m_dbPath;
    Session m_session;
    QtSerialPortLink m_port;
    ConsoleExchange m_exchange;
    ConnectionController m_controller;
    QString m_modelNumber;
    QString m_databaseError;
    bool m_lost = false;
};
