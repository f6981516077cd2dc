#include "BoardCheck.h"

#include "ConsoleExchange.h"
#include "Session.h"
#include "Startup.h"

#include <algorithm>

namespace {

// Never give up before the exchange itself would have ended: its last slice is its own limit.
constexpr int ExchangeLimitMs = (ConsoleExchange::MaxSlices + 2) * ConsoleExchange::SliceIntervalMs;

} // namespace

BoardCheck::BoardCheck(Session &session, ConsoleExchange &exchange, QObject *parent)
    : QObject(parent), m_session(session), m_exchange(exchange)
{
    m_giveUp.setSingleShot(true);
    connect(&m_giveUp, &QTimer::timeout, this, &BoardCheck::onStepTimeout);
    connect(&m_exchange, &ConsoleExchange::answerFinished, this, [this](const QString &) {
        if (!m_waiting)
            return;
        m_waiting = false;
        m_giveUp.stop();
        // The slice of the finishing tick lands in the console right after the hand-over.
        QTimer::singleShot(0, this, [this] { onAnswer(m_exchange.console()); });
    });
    // A lost port first ends the exchange under way (its answer is then ignored), then the
    // connection flag falls to "0".
    connect(&m_session, &Session::connectionFlagChanged, this, [this](const QString &flag) {
        if (!m_running || flag != QLatin1String("0"))
            return;
        m_lost = true;
        if (!m_waiting)
            QTimer::singleShot(0, this, [this] { finish(CheckResult::End::Lost); });
    });
}

bool BoardCheck::start(const QString &model, const QString &dbPath)
{
    if (m_running || !m_session.connectedAndIdle() || model.isEmpty())
        return false;
    m_steps = CheckSteps::steps(model);
    m_context = {model, dbPath};
    m_result = {};
    m_result.model = model;
    m_result.serial = CheckSteps::unknownSerial();
    // The command line has no start-up to set the session's version; the program's own stands in.
    m_result.version = m_session.versao().isEmpty() ? QString::fromLatin1(Startup::Versao) : m_session.versao();
    m_result.when = QDateTime::currentDateTime();
    m_result.totalSteps = int(m_steps.size());
    m_answers.clear();
    m_index = -1;
    m_lost = false;
    m_running = true;
    m_wall.start();
    nextStep();
    return true;
}

void BoardCheck::cancel()
{
    if (!m_running)
        return;
    m_waiting = false;
    m_giveUp.stop();
    m_exchange.endNow();
    finish(CheckResult::End::Cancelled);
}

void BoardCheck::nextStep()
{
    if (!m_running)
        return;
    if (m_lost || m_session.connectionFlag() == QLatin1String("0")) {
        finish(CheckResult::End::Lost);
        return;
    }
    if (++m_index >= m_steps.size()) {
        finish(CheckResult::End::Complete);
        return;
    }
    const CheckStep &step = m_steps.at(m_index);
    emit stepStarted(m_index, int(m_steps.size()), step.key);
    if (const auto known = m_answers.constFind(step.command); known != m_answers.cend()) {
        const QString answer = *known;
        QTimer::singleShot(0, this, [this, answer] {
            if (!m_running)
                return;
            judge(m_steps.at(m_index), answer, 0);
            nextStep();
        });
        return;
    }
    m_session.setScreenId(QString::fromLatin1(ScreenId));
    m_exchange.setCommandField(step.command);
    m_waiting = true;
    m_giveUp.start(std::max(step.tickLimit * step.tickMs, ExchangeLimitMs));
    m_stepClock.start();
    m_exchange.EnviaComando();
}

void BoardCheck::onStepTimeout()
{
    if (!m_running || !m_waiting)
        return;
    m_waiting = false;
    m_result.steps.append({m_steps.at(m_index).key, CheckSteps::detail(m_steps.at(m_index).key, m_context.model),
                           CheckStepResult::Outcome::NoAnswer, {}, {}, m_stepClock.elapsed()});
    m_exchange.endNow();
    QTimer::singleShot(0, this, &BoardCheck::nextStep);
}

void BoardCheck::onAnswer(const QString &answer)
{
    if (!m_running)
        return;
    // An answer cut by a pulled cable is not an answer: the check ends with the steps before it.
    if (m_lost) {
        finish(CheckResult::End::Lost);
        return;
    }
    const CheckStep &step = m_steps.at(m_index);
    m_answers.insert(step.command, answer);
    judge(step, answer, m_stepClock.elapsed());
    nextStep();
}

void BoardCheck::judge(const CheckStep &step, const QString &answer, qint64 exchangeMs)
{
    CheckStepResult result{step.key, CheckSteps::detail(step.key, m_context.model), CheckStepResult::Outcome::Judged,
                           {}, {}, exchangeMs};
    if (!step.answered(answer)) {
        result.outcome = CheckStepResult::Outcome::NoAnswer;
    } else {
        const QString statusName = CheckSteps::title(step.key, m_context.model, 1);
        for (const JudgeReport &report : step.judge(m_context, answer, &result.problem))
            result.rows += CheckSteps::rowsOf(report, statusName);
        if (step.key == QLatin1String("serial") && !result.rows.isEmpty())
            m_result.serial = result.rows.first().caption;
    }
    m_result.steps.append(result);
}

void BoardCheck::finish(CheckResult::End end)
{
    if (!m_running)
        return;
    m_running = false;
    m_waiting = false;
    m_giveUp.stop();
    m_result.end = end;
    m_result.wallMs = m_wall.elapsed();
    emit finished();
}
