#include "Board.h"

#include "ChipFaults.h"
#include "RailTable.h"

#include <QStringList>

namespace {
// Answers at least this long are cut in the middle by the unplugging board.
constexpr qsizetype kLongAnswer = 512;
}

Board::Board(AnswerStore store, SimModel model, Profile profile)
    : m_store(std::move(store)), m_model(std::move(model)), m_profile(profile)
{
}

QByteArray Board::notFound(const QString &command)
{
    // The console names only the command word, not its arguments.
    return "Command \"" + command.trimmed().section(QLatin1Char(' '), 0, 0).toUtf8() + "\" not found\n";
}

void Board::receive(const QByteArray &bytes)
{
    if (m_profile == Profile::Silent)
        return;
    for (char c : bytes) {
        if (c == '\r' || (c == '\n' && !m_lastWasCr)) {
            runCommand(m_line + c);
            m_line.clear();
        } else if (c != '\n') {
            m_line += c;
        }
        m_lastWasCr = c == '\r';
    }
}

QByteArray Board::prompt()
{
    // Two counters, as the phone's console shows them; their values carry no meaning here.
    const quint32 clock = 0x0001a000u + m_commandCount * 0x1f3u;
    return "[" + QByteArray::number(clock, 16).rightJustified(8, '0') + ":" +
           QByteArray::number(m_commandCount, 16).rightJustified(8, '0') + "] :-) ";
}

void Board::runCommand(const QByteArray &received)
{
    ++m_commandCount;
    QByteArray echo = received;
    if (echo.endsWith('\n'))
        echo.chop(1);
    QByteArray out = echo;
    if (!out.endsWith('\r'))
        out += '\r';
    out += '\n';
    const QString command = QString::fromUtf8(received).trimmed();
    if (!command.isEmpty())
        out += answerBody(command);
    out += prompt();

    if (m_profile == Profile::Unplug && !m_unplugArmed && out.size() >= kLongAnswer) {
        m_pending += out.left(out.size() / 2);
        m_unplugArmed = true;
        return;
    }
    if (!m_unplugArmed)
        m_pending += out;
    if (m_profile == Profile::Chatty)
        m_talking = true;
}

QByteArray Board::answerBody(const QString &command)
{
    const QString key = AnswerStore::normalise(command);
    if (m_profile == Profile::RejectOnce && !m_rejected && key == QLatin1String("syscfg print rmd#")) {
        // The first byte got lost on the way in: the console saw a command it does not know.
        m_rejected = true;
        return notFound(command.mid(1).section(QLatin1Char(' '), 0, 0));
    }
    const QString profileFolder =
        m_profile == Profile::Good ? QString() : SimCatalog::profileName(m_profile);
    const std::optional<QByteArray> body = m_store.lookup(m_model.folder, profileFolder, command);
    if (!body)
        return notFound(command);
    return applyFaults(key, *body);
}

QByteArray Board::applyFaults(const QString &normalised, QByteArray body)
{
    switch (m_profile) {
    case Profile::LowRail:
        return ChipFaults::lowerJudgedValue(
            normalised, normalised == QLatin1String("pmuadc --read all") ? lowerRail(body) : body);
    case Profile::I2cMissing:
        return normalised == QLatin1String("i2c -s ") + QString::number(missingI2cBus(m_model.name))
            ? dropLastI2cDevice(body)
            : body;
    case Profile::Garbage:
        return sprinkleGarbage(body);
    default:
        return body;
    }
}

QByteArray Board::lowerRail(QByteArray body) const
{
    // The first VCore rail with a real voltage reads 20 % low: the case a technician hunts.
    const QList<RailRow> rows =
        RailTable::forModel(RailTable::parse(m_store.dataFile(QStringLiteral("rails.tsv"))), m_model.name);
    for (const RailRow &r : rows) {
        if (r.railClass != 0 || r.unit != QLatin1String("mV") || r.nominal <= 0)
            continue;
        const QByteArray label = r.label.toUtf8();
        const qsizetype p = body.indexOf(label);
        if (p < 0)
            continue;
        const qsizetype s = p + label.size() + 1;
        const qsizetype e = body.indexOf(' ', s);
        const std::optional<double> v = RailTable::valueAfter(body, r.label);
        if (e < 0 || !v)
            continue;
        body.replace(s, e - s, QByteArray::number(*v * 0.8, 'f', 3));
        return body;
    }
    return body;
}

int Board::missingI2cBus(const QString &model)
{
    // The bus behind the flex or part that most often breaks on each model (front camera and
    // proximity flex, dock, RF), so the lost device points a technician at a connector.
    if (model == QLatin1String("IP 8"))
        return 1;
    if (model == QLatin1String("IP 8 Plus"))
        return 3;
    if (model == QLatin1String("IP X"))
        return 5;
    return 2;
}

QByteArray Board::dropLastI2cDevice(QByteArray body) const
{
    const qsizetype at = body.lastIndexOf(" 0x");
    if (at < 0)
        return body;
    const qsizetype start = body.lastIndexOf('\n', at) + 1;
    const qsizetype end = body.indexOf('\n', at);
    body.remove(start, end < 0 ? body.size() - start : end - start + 1);
    return body;
}

QByteArray Board::sprinkleGarbage(const QByteArray &body)
{
    // NUL, a broken UTF-8 sequence, escape and bell bytes: what a noisy cable or a confused box
    // puts into a line. Lines stay where they were so the answer is still recognisable.
    static const QByteArray junk("\x00\xff\xfe\xc3\x1b[0m\x07\x01", 10);
    QByteArray out = junk + "\n";
    const QList<QByteArray> lines = body.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i == lines.size() - 1 && lines[i].isEmpty())
            break;
        out += lines[i];
        if (i % 3 == 0)
            out += QByteArray(" \x00\xc0\x80\x02", 5);
        out += '\n';
    }
    return out;
}

QByteArray Board::chatter()
{
    ++m_chatterCount;
    return "AppleARMPMU: event " + QByteArray::number(m_chatterCount) + " charger poll vbus=" +
           QByteArray::number(5000 + int(m_chatterCount % 17)) + "mV\n";
}

QByteArray Board::takeOutput(qsizetype maxBytes)
{
    while (m_talking && m_pending.size() < maxBytes)
        m_pending += chatter();
    const QByteArray out = m_pending.left(maxBytes);
    m_pending.remove(0, out.size());
    return out;
}

bool Board::hasOutput() const
{
    return !m_pending.isEmpty() || m_talking;
}
