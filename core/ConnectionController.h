#pragma once
// Connecting and disconnecting, validating a fresh connection (including recognising the phone's
// model from its first answer) and asking again after a rejected first command. It holds no
// widgets: the main window paints what it reports and shows the message keys it emits, the
// command line prints them.

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>

class ConsoleExchange;
class Session;
class SerialPort;

class ConnectionController : public QObject
{
    Q_OBJECT
public:
    static constexpr int ValidationIntervalMs = 300;
    static constexpr int ReidentifyIntervalMs = 50;
    static constexpr int MinimumAnswerLength = 41; // a shorter first answer is not the device yet
    static constexpr int GiveUpAfterTicks = 10;

    // Regulatory model number ("A1778") to model name ("IP 7"); nothing when unknown.
    using ModelLookup = std::function<std::optional<QString>(const QString &modelNumber)>;

    ConnectionController(Session &session, ConsoleExchange &exchange, SerialPort &port,
                         QObject *parent = nullptr);

    // The connect button (Botoes element 1). `portName` is the device picked in cbPortas;
    // `portNumberText` the text the COM rules and the messages use (the COM number on Windows).
    void connectClicked(const QString &portName, const QString &portNumberText);

    // Without a lookup every model number counts as unknown.
    void setModelLookup(ModelLookup lookup) { m_modelLookup = std::move(lookup); }
    // The "ports above COM 16" rule; on by default only where ports are COM numbers.
    void setComNumberRule(bool on) { m_comNumberRule = on; }
    bool comNumberRule() const { return m_comNumberRule; }

    // The connection label's word for a connection flag.
    static QString labelKey(const QString &flag);

    void onTimerValidaPorta();
    void onTimerVerificaVersao();

    QTimer &timerValidaPorta() { return m_timerValidaPorta; }
    QTimer &timerVerificaVersao() { return m_timerVerificaVersao; }
    int validationCount() const { return m_validation; }
    void resetValidationCount() { m_validation = 0; }

    // The text of the model-number label.
    QString modelNumber() const { return m_modelNumber; }
    // Whether a model combo box is visible to receive the focus / re-identification.
    void setModelComboVisible(bool visible) { m_modelComboVisible = visible; }

signals:
    void buttonCaptionChanged(const QString &key);  // "Conectar", "Conectando", "Desconectar"
    void statusLightChanged(const QString &name);   // "Branco", "Amarelo", "Verde"
    void modelNumberChanged(const QString &text);
    void modelRecognised(const QString &modelName); // Ref of the Modelos row
    void message(const QString &key, const QString &porta); // the main window shows Mensagem
    void focusModelCombo();
    void refillPorts();
    void connected(); // the device answered: waiting screens may enable their start buttons
    void disconnected();
    void connectionLost(); // the cable was pulled or the device vanished: said once, after disconnected()
    void connectionLabelChanged(const QString &key); // follows the session's connection flag

private:
    void disconnectPort();
    void giveUp();
    void onPortLost();
    void recognise(bool reidentifying); // model number from the console, then the model name
    void startReidentification(); // asks for the model once more
    void setButtonCaption(const QString &key);
    void setStatusLight(const QString &name);
    void setModelNumber(const QString &text);

    Session &m_session;
    ConsoleExchange &m_exchange;
    SerialPort &m_port;
    QTimer m_timerValidaPorta;
    QTimer m_timerVerificaVersao;
    quint8 m_validation = 0;
    quint8 m_attempts = 0;
    quint8 m_ticks = 0;
    QString m_modelNumber;
    QString m_portNumberText;
    bool m_modelComboVisible = true;
#ifdef Q_OS_WIN
    bool m_comNumberRule = true;
#else
    bool m_comNumberRule = false;
#endif
    ModelLookup m_modelLookup;
};
