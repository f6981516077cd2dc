#pragma once
// The values every screen shares for one run of the program: language, connection flag,
// screen identifier, live echo, open flags and the selected model. One instance is created
// in main() and handed to whoever needs it, so tests can run several sessions side by side.

#include "CommandHistory.h"

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>

class Session : public QObject
{
    Q_OBJECT
public:
    explicit Session(const QString &configPath, QObject *parent = nullptr);

    // Full path of Config.vkt; every database use opens this file.
    QString configPath() const { return m_configPath; }

    // Both version texts of the program ("1.81").
    QString versao() const { return m_versao; }
    QString versao2() const { return m_versao2; }
    void setVersoes(const QString &versao) { m_versao = m_versao2 = versao; }

    bool startFlag() const { return m_startFlag; }
    void setStartFlag(bool on) { m_startFlag = on; }

    QString defaultReadoutKey() const { return m_defaultReadoutKey; }
    void setDefaultReadoutKey(const QString &key) { m_defaultReadoutKey = key; }

    QDateTime sessionStart() const { return m_sessionStart; }
    void setSessionStart(const QDateTime &when) { m_sessionStart = when; }

    // 1 Portuguese, 2 English, 3 Spanish.
    quint8 idioma() const { return m_idioma; }
    void setIdioma(quint8 idioma);

    // Text of a dictionary key in the session language; empty for an unknown key or language.
    QString Traduz(const QString &key) const;

    QString windowTitle() const { return m_windowTitle; }
    void setWindowTitle(const QString &title) { m_windowTitle = title; }

    // "0" idle, otherwise the number of the screen that owns the next answer.
    QString screenId() const { return m_screenId; }
    void setScreenId(const QString &id) { m_screenId = id; }

    bool liveEcho() const { return m_liveEcho; }
    void setLiveEcho(bool on) { m_liveEcho = on; }

    // Set by the command console for answers that must not be auto-compared; cleared at delivery.
    bool longAnswer() const { return m_longAnswer; }
    void setLongAnswer(bool on) { m_longAnswer = on; }

    // The console's sent commands, kept while the program runs even when the console is closed.
    CommandHistory &commandHistory() { return m_commandHistory; }

    // "0" disconnected, "2" connecting, "3" an exchange running, "1" connected and idle.
    QString connectionFlag() const { return m_connectionFlag; }
    void setConnectionFlag(const QString &flag);
    bool connectedAndIdle() const { return m_connectionFlag == QLatin1String("1"); }
    // True once a fresh connection has been validated (the phone answered) until it ends. The
    // flag is "1" after every answer, the first one of a silent port included, so screens whose
    // start buttons wait for a validated phone ask this as well.
    bool connectionValidated() const { return m_connectionValidated; }
    void setConnectionValidated(bool validated);
    bool validatedAndIdle() const { return m_connectionValidated && connectedAndIdle(); }

    // The model text of the main window's model list ("IP 6" ... "IP X").
    QString modelo() const { return m_modelo; }
    void setModelo(const QString &modelo);

    // One open flag per test screen, keyed by the screen's class name ("Master", "VCores" ...).
    bool isOpen(const QString &screen) const { return m_open.value(screen, false); }
    void setOpen(const QString &screen, bool open) { m_open[screen] = open; }

signals:
    void idiomaChanged(quint8 idioma);
    void connectionFlagChanged(const QString &flag);
    void connectionValidatedChanged(bool validated);
    void modeloChanged(const QString &modelo);

private:
    QString m_configPath;
    QString m_versao;
    QString m_versao2;
    bool m_startFlag = true;
    QString m_defaultReadoutKey;
    QDateTime m_sessionStart;
    quint8 m_idioma = 1;
    QString m_windowTitle;
    QString m_screenId = QStringLiteral("0");
    bool m_liveEcho = false;
    bool m_longAnswer = false;
    CommandHistory m_commandHistory;
    QString m_connectionFlag = QStringLiteral("0");
    bool m_connectionValidated = false;
    QString m_modelo = QStringLiteral("IP 7");
    QMap<QString, bool> m_open;
};
