#pragma once
// The desktop program as main() wires it — session on a Config.vkt, the real serial link, the
// exchange, the connection with its Database model lookup, the port list and the main window —
// with scripted message boxes instead of real ones, so end-to-end tests drive what a technician
// drives and read what a technician sees.

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "Inicial.h"
#include "PortList.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "Startup.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <memory>

struct DesktopProgram
{
    static inline const QString ConsoleId = QStringLiteral("1");

    Session session;
    QtSerialPortLink port;
    ConsoleExchange exchange{session, port};
    ConnectionController connection{session, exchange, port};
    PortList ports;
    FakeDialogs dialogs;
    std::unique_ptr<Inicial> inicial;
    // Answers handed over to the command console's identifier, in order.
    QStringList answers;

    explicit DesktopProgram(const QString &configPath) : session(configPath)
    {
        Startup::initSession(session);
        connection.setModelLookup([this](const QString &number) {
            return Database(session.configPath()).modeloRef(number);
        });
        inicial = std::make_unique<Inicial>(ScreenContext{session, exchange, dialogs}, connection, ports);
        exchange.registerReceiver(ConsoleId, nullptr, {[this](const QString &answer) { answers << answer; }, {}});
    }

    // What a screen does to send: claim the next answer, fill the command field, send.
    void send(const QString &command)
    {
        session.setScreenId(ConsoleId);
        exchange.setCommandField(command);
        exchange.EnviaComando();
    }

    template<typename T> T *find(const char *name) const
    {
        return inicial->findChild<T *>(QString::fromLatin1(name));
    }
    QComboBox *portCombo() const { return find<QComboBox>("cbPortas"); }
    QComboBox *modelCombo() const { return find<QComboBox>("ComboAparelhos"); }
    QLabel *modelNumberLabel() const { return find<QLabel>("lbModeloNumero"); }
    QPushButton *connectButton() const { return find<QPushButton>("Botoes_1"); }
    QPlainTextEdit *console() const { return find<QPlainTextEdit>("txtConsole"); }
    QString flag() const { return session.connectionFlag(); }

    // Rescans the ports and picks `path` in cbPortas; false when the list does not offer it.
    bool selectPort(const QString &path)
    {
        ports.refresh();
        inicial->fillPorts();
        const int index = portCombo()->findData(path);
        if (index < 0)
            return false;
        portCombo()->setCurrentIndex(index);
        return true;
    }

    // Any model but `model`, so a recognised model visibly changes the combo.
    void preselectOtherModel(const QString &model)
    {
        for (const QString &m : Inicial::modelos()) {
            if (m != model) {
                modelCombo()->setCurrentText(m);
                return;
            }
        }
    }
};
