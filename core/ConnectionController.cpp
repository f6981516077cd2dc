#include "ConnectionController.h"

#include "ConsoleExchange.h"
#include "SerialPort.h"
#include "Session.h"

namespace {

const QString ModelQuery = QStringLiteral("syscfg print RMd#");

// Position of `needle` in `text`, counted from 1; 0 when absent.
qsizetype position(const QString &text, const QString &needle)
{
    return text.indexOf(needle) + 1;
}

} // namespace

ConnectionController::ConnectionController(Session &session, ConsoleExchange &exchange,
                                           SerialPort &port, QObject *parent)
    : QObject(parent), m_session(session), m_exchange(exchange), m_port(port)
{
    m_timerValidaPorta.setInterval(ValidationIntervalMs);
    m_timerVerificaVersao.setInterval(ReidentifyIntervalMs);
    connect(&m_timerValidaPorta, &QTimer::timeout, this, &ConnectionController::onTimerValidaPorta);
    connect(&m_timerVerificaVersao, &QTimer::timeout, this, &ConnectionController::onTimerVerificaVersao);
    connect(&m_session, &Session::connectionFlagChanged, this,
            [this](const QString &flag) { emit connectionLabelChanged(labelKey(flag)); });
    connect(&m_port, &SerialPort::lost, this, &ConnectionController::onPortLost);
}

QString ConnectionController::labelKey(const QString &flag)
{
    if (flag == QLatin1String("1"))
        return QStringLiteral("Conectado");
    if (flag == QLatin1String("2"))
        return QStringLiteral("Conectando");
    if (flag == QLatin1String("3"))
        return QStringLiteral("Comunicando");
    return QStringLiteral("Desconectado");
}

void ConnectionController::connectClicked(const QString &portName, const QString &portNumberText)
{
    const QString flag = m_session.connectionFlag();
    if (flag == QLatin1String("3") || flag == QLatin1String("2"))
        return;

    // The serial control of old boxes only reliably reaches COM1..COM16.
    if (m_comNumberRule && portNumberText.trimmed().toInt() > 16) {
        emit message(QStringLiteral("MSG_16"), portNumberText);
        return;
    }

    if (flag != QLatin1String("0")) {
        disconnectPort();
        return;
    }

    m_portNumberText = portNumberText;
    // A connection abandoned half-way must not shorten the next one's patience.
    m_validation = 0;
    const int error = m_port.open(portName);
    if (error != SerialPort::NoError) {
        emit message(error == SerialPort::PortAlreadyOpen ? QStringLiteral("MSG_PORTA_EM_USO")
                                                          : QStringLiteral("MSG_PORTA_INVALIDA"),
                     portNumberText);
        emit refillPorts();
        return;
    }
    m_exchange.setCommandField(ModelQuery);
    m_exchange.EnviaComando();
    m_timerValidaPorta.start();
    setButtonCaption(QStringLiteral("Conectando"));
    m_session.setConnectionFlag(QStringLiteral("2"));
    setStatusLight(QStringLiteral("Amarelo"));
}

void ConnectionController::disconnectPort()
{
    m_port.close();
    setButtonCaption(QStringLiteral("Conectar"));
    setStatusLight(QStringLiteral("Branco"));
    m_session.setConnectionFlag(QStringLiteral("0"));
    m_timerValidaPorta.stop();
    m_timerVerificaVersao.stop();
    setModelNumber(QString());
    emit disconnected();
}

void ConnectionController::onPortLost()
{
    // Whatever had arrived is delivered first, so the waiting screen is not left hanging.
    m_exchange.endNow();
    if (m_session.connectionFlag() == QLatin1String("0"))
        return;
    disconnectPort();
    m_exchange.restoreCaption();
    emit connectionLost();
    emit refillPorts();
}

void ConnectionController::onTimerValidaPorta()
{
    // The first answer is still being collected.
    if (m_session.connectionFlag() != QLatin1String("1"))
        return;

    ++m_validation;
    if (m_validation > GiveUpAfterTicks) {
        giveUp();
        return;
    }
    if (m_exchange.console().size() < MinimumAnswerLength)
        return;

    m_timerValidaPorta.stop();
    setButtonCaption(QStringLiteral("Desconectar"));
    setStatusLight(QStringLiteral("Verde"));
    m_session.setConnectionFlag(QStringLiteral("1"));
    emit connectionLabelChanged(labelKey(QStringLiteral("1")));
    m_session.setConnectionValidated(true);
    emit connected();
    recognise(false);
}

void ConnectionController::giveUp()
{
    m_timerValidaPorta.stop();
    m_exchange.setCommandField(QString());
    emit message(QStringLiteral("MSG_PORTA_NAO_RESPONDE"), m_portNumberText);
    emit message(QStringLiteral("MSG_PORTA"), m_portNumberText);
    m_port.close();
    setButtonCaption(QStringLiteral("Conectar"));
    setStatusLight(QStringLiteral("Branco"));
    m_session.setConnectionFlag(QStringLiteral("0"));
    m_exchange.restoreCaption();
    m_validation = 0;
    emit disconnected();
    emit refillPorts();
}

void ConnectionController::recognise(bool reidentifying)
{
    const QString console = m_exchange.console();
    // The answer reads: CR LF, the echoed command ending in "#", CR CR LF, the model number,
    // CR LF, then the prompt "[...". So the number starts four characters after the "#" and
    // ends two characters before the "[".
    const qsizetype a = position(console, QStringLiteral("#")) + 4;
    const qsizetype b = position(console, QStringLiteral("[")) - 2;

    if (console.contains(QLatin1String("SystemConfig Driver is missing!"))) {
        emit message(QStringLiteral("MSG_ERRO_NAND"), m_portNumberText);
        emit message(QStringLiteral("MSG_SELECIONE_MODELO"), m_portNumberText);
        emit focusModelCombo();
        return;
    }
    if (a == 0 || b == 0)
        return;

    // An impossible cut (no prompt, or the prompt before the "#") yields nothing.
    const QString value = (b > a && a <= console.size()) ? console.mid(a - 1, b - a) : QString();

    if (console.contains(QLatin1String("Command"))) {
        // The device did not take the command: ask once more, but only from the first answer.
        if (!reidentifying && m_modelComboVisible)
            startReidentification();
        if (reidentifying || m_modelComboVisible)
            return;
    }
    if (!value.startsWith(u'A'))
        return;

    setModelNumber(value);
    m_exchange.setCommandField(QString());
    m_exchange.clearConsole();
    const std::optional<QString> ref = m_modelLookup ? m_modelLookup(value) : std::nullopt;
    if (!ref) {
        emit message(QStringLiteral("MSG_SELECIONE_MODELO"), m_portNumberText);
        emit focusModelCombo();
    } else {
        m_session.setModelo(*ref);
        emit modelRecognised(*ref);
    }
    m_validation = 0;
}

void ConnectionController::startReidentification()
{
    if (m_session.connectionFlag() != QLatin1String("1"))
        return;
    setModelNumber(QStringLiteral("..."));
    // Each re-identification gets its one resend and its 15 ticks, however many came before.
    m_attempts = 0;
    m_ticks = 0;
    m_exchange.setCommandField(ModelQuery);
    m_exchange.EnviaComando();
    m_timerVerificaVersao.start();
}

void ConnectionController::onTimerVerificaVersao()
{
    if (m_session.connectionFlag() != QLatin1String("1"))
        return;

    ++m_attempts;
    if (m_exchange.console().contains(QLatin1String("Command")) && m_attempts == 1) {
        m_exchange.setCommandField(ModelQuery);
        m_exchange.EnviaComando();
        return;
    }
    ++m_ticks;
    if (m_ticks == 15)
        m_timerVerificaVersao.stop();
    if (m_exchange.console().size() >= 21) {
        m_timerVerificaVersao.stop();
        recognise(true);
    }
}

void ConnectionController::setButtonCaption(const QString &key)
{
    emit buttonCaptionChanged(key);
}

void ConnectionController::setStatusLight(const QString &name)
{
    emit statusLightChanged(name);
}

void ConnectionController::setModelNumber(const QString &text)
{
    m_modelNumber = text;
    emit modelNumberChanged(text);
}
