#pragma once
// Runs every step of a board check one after the other through the ordinary console exchange,
// the one the screens use, so a check reads the phone exactly as the screens would. It adds no
// waiting: each step starts when the previous answer ends, and a step whose command was already
// answered in this check (the rails and two chip readouts share one) reuses that answer. A step
// the phone does not answer is recorded as such and the check goes on; a pulled cable ends it
// with what was gathered (the connection flag falls to "0" when the port is lost).

#include "CheckResult.h"
#include "CheckSteps.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

class ConsoleExchange;
class Session;

class BoardCheck : public QObject
{
    Q_OBJECT
public:
    // The screen identifier the check's answers are sent under: no screen receives them.
    static constexpr const char *ScreenId = "BC";

    BoardCheck(Session &session, ConsoleExchange &exchange, QObject *parent = nullptr);

    // Starts the steps of `model`; false when the phone is not connected and idle.
    bool start(const QString &model, const QString &dbPath);
    // Ends the exchange under way and finishes the check as cancelled.
    void cancel();
    bool running() const { return m_running; }
    const CheckResult &result() const { return m_result; }

    // Exposed for tests: a step's give-up, as if its screen's ticks had run out.
    void onStepTimeout();

signals:
    void stepStarted(int index, int total, const QString &key);
    void finished();

private:
    void nextStep();
    void onAnswer(const QString &answer);
    void judge(const CheckStep &step, const QString &answer, qint64 exchangeMs);
    void finish(CheckResult::End end);

    Session &m_session;
    ConsoleExchange &m_exchange;
    QList<CheckStep> m_steps;
    CheckContext m_context;
    CheckResult m_result;
    QHash<QString, QString> m_answers; // by command, within one check
    QTimer m_giveUp;
    QElapsedTimer m_wall;
    QElapsedTimer m_stepClock;
    int m_index = -1;
    bool m_running = false;
    bool m_waiting = false;
    bool m_lost = false;
};
