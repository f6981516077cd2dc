#pragma once
// What every end-to-end test needs before the program objects exist: a running simulated phone
// whose pseudo-terminal path is known, and a throw-away copy of the shipped Config.vkt so the
// tests never write into the build's own database. The simulator is stopped when the helper
// goes out of scope, so a failing check half-way through never leaves a phone running.

#include "ConsoleExchange.h"
#include "FakeDialogs.h"
#include "QtSerialPort.h"
#include "Session.h"
#include "TestScreen.h"

#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <map>
#include <memory>

class SimProcess
{
public:
    static QString program() { return QStringLiteral(VEKTO_BIN_DIR "/vekto-sim"); }
    static QString shippedConfig() { return QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"); }
    // Both the simulator and the database are build products; a partial build skips the tests.
    static bool available() { return QFile::exists(program()) && QFile::exists(shippedConfig()); }

    SimProcess() = default;
    SimProcess(const SimProcess &) = delete;
    SimProcess &operator=(const SimProcess &) = delete;
    ~SimProcess() { stop(); }

    // Starts a phone and waits for the first line it prints (its port). Empty error on success.
    QString start(const QString &model, const QString &profile)
    {
        m_process.start(program(), {QStringLiteral("--model"), model, QStringLiteral("--profile"), profile});
        if (!m_process.waitForStarted(10000))
            return QStringLiteral("vekto-sim did not start: ") + m_process.errorString();
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return QStringLiteral("vekto-sim printed no port: ") +
                       QString::fromLocal8Bit(m_process.readAllStandardError());
        }
        m_port = QString::fromLocal8Bit(m_process.readLine()).trimmed();
        if (!m_port.startsWith(u'/'))
            return QStringLiteral("vekto-sim printed no port path but: ") + m_port;
        return {};
    }

    QString port() const { return m_port; }
    bool running() const { return m_process.state() != QProcess::NotRunning; }
    QProcess &process() { return m_process; }

    // SIGTERM first, so the simulator removes its registration file; SIGKILL if it hangs.
    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(3000)) {
            m_process.kill();
            m_process.waitForFinished(3000);
        }
    }

private:
    QProcess m_process;
    QString m_port;
};

// Simulated phones started on first use and shared by the tests of one file, one per model and
// profile; null (with the reason logged) when one would not start.
class SimPhones
{
public:
    SimProcess *get(const QString &model, const QString &profile)
    {
        std::unique_ptr<SimProcess> &p = m_phones[model + u'/' + profile];
        if (!p) {
            p = std::make_unique<SimProcess>();
            const QString error = p->start(model, profile);
            if (!error.isEmpty()) {
                qWarning("%s", qPrintable(error));
                p.reset();
            }
        }
        return p.get();
    }

private:
    std::map<QString, std::unique_ptr<SimProcess>> m_phones;
};

// A writable copy of the shipped Config.vkt in its own temporary folder.
class ConfigCopy
{
public:
    ConfigCopy()
        : m_path(m_dir.filePath(QStringLiteral("Config.vkt")))
    {
        m_ok = m_dir.isValid() && QFile::copy(SimProcess::shippedConfig(), m_path) &&
               QFile::setPermissions(m_path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    bool ok() const { return m_ok; }
    QString path() const { return m_path; }

private:
    QTemporaryDir m_dir;
    QString m_path;
    bool m_ok = false;
};

// The program's side of one phone opened by hand, without the main window: session, the real
// serial link, the exchange and scripted boxes.
struct SimLink
{
    Session session;
    QtSerialPortLink port;
    ConsoleExchange exchange{session, port};
    FakeDialogs dialogs;
    ScreenContext context{session, exchange, dialogs};

    SimLink(const QString &config, const QString &model) : session(config) { session.setModelo(model); }

    // Opens `pty` as a connected phone whose model is known; false when the port will not open.
    bool open(const QString &pty)
    {
        if (port.open(pty) != SerialPort::NoError)
            return false;
        session.setConnectionFlag(QStringLiteral("1"));
        session.setConnectionValidated(true);
        return true;
    }
};
