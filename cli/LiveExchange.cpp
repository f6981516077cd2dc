#include "LiveExchange.h"

#include "CliOutput.h"
#include "Database.h"
#include "PortList.h"

#include <QEventLoop>
#include <QTimer>

LiveExchange::LiveExchange(const QString &dbPath)
    : m_dbPath(dbPath)
    , m_session(dbPath)
    , m_exchange(m_session, m_port)
    , m_controller(m_session, m_exchange, m_port)
{
    m_controller.setModelLookup([this](const QString &number) {
        Database db(m_dbPath, Database::Access::ReadOnly);
        const std::optional<QString> ref = db.modeloRef(number);
        // A file that cannot be read is not an unknown model: its reason is kept for the caller.
        if (!db.lastError().isEmpty())
            m_databaseError = Cli::databaseProblem(m_dbPath, db.lastError());
        return ref;
    });
    QObject::connect(&m_port, &SerialPort::lost, &m_controller, [this] { m_lost = true; });
}

LiveExchange::~LiveExchange()
{
    m_port.close();
}

QString LiveExchange::open(const QString &portName)
{
    const int error = m_port.open(portName);
    if (error == SerialPort::NoError) {
        m_session.setConnectionFlag(QStringLiteral("1"));
        return {};
    }
    return QStringLiteral("cannot open port %1: %2 (%3)")
        .arg(portName, Cli::openErrorText(error), m_port.lastErrorText());
}

std::optional<QString> LiveExchange::recogniseModel(const QString &portName, const MessageSink &onMessage)
{
    std::optional<QString> model;
    QEventLoop loop;
    const auto recognised = QObject::connect(&m_controller, &ConnectionController::modelRecognised, &loop,
                                             [&](const QString &name) {
                                                 model = name;
                                                 loop.quit();
                                             });
    const auto number = QObject::connect(&m_controller, &ConnectionController::modelNumberChanged, &loop,
                                         [this](const QString &text) {
                                             if (!text.isEmpty() && text != QLatin1String("..."))
                                                 m_modelNumber = text;
                                         });
    const auto message = QObject::connect(&m_controller, &ConnectionController::message, &loop,
                                          [&](const QString &key, const QString &porta) {
                                              if (onMessage)
                                                  onMessage(key, porta);
                                          });
    // Connecting is over when nothing runs any more: the exchange, the validation and the
    // re-identification are all idle.
    QTimer watch;
    watch.setInterval(100);
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
        if (m_exchange.running() || m_controller.timerValidaPorta().isActive()
            || m_controller.timerVerificaVersao().isActive())
            return;
        loop.quit();
    });
    m_controller.connectClicked(portName, PortList::numberTextFor(portName));
    watch.start();
    if (!model)
        loop.exec();
    QObject::disconnect(recognised);
    QObject::disconnect(number);
    QObject::disconnect(message);
    // Wait for the validation to finish so the next command does not cut into it.
    while (model && (m_exchange.running() || m_controller.timerValidaPorta().isActive()
                     || m_controller.timerVerificaVersao().isActive())) {
        QEventLoop idle;
        QTimer::singleShot(50, &idle, &QEventLoop::quit);
        idle.exec();
    }
    return model;
}

std::optional<QString> LiveExchange::exchange(const QString &command)
{
    if (m_lost)
        return std::nullopt;
    QEventLoop loop;
    const auto lostConnection = QObject::connect(&m_port, &SerialPort::lost, &loop, &QEventLoop::quit);
    const auto finished = QObject::connect(&m_exchange, &ConsoleExchange::answerFinished, &loop, [&] {
        // The slice of the finishing tick is appended right after the hand-over.
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    m_session.setConnectionFlag(QStringLiteral("1"));
    m_exchange.setCommandField(command);
    m_exchange.EnviaComando();
    loop.exec();
    QObject::disconnect(lostConnection);
    QObject::disconnect(finished);
    if (m_lost)
        return std::nullopt;
    return m_exchange.console();
}
