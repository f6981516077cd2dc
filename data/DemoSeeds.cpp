// How the demo recordings and masks are derived from the simulated phone, and written as SQL.
#include "DemoSeeds.h"

#include "AutoComparador.h"
#include "Board.h"
#include "ConsoleExchange.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

namespace demo {

// The console text of one exchange with a fresh good board: CR LF, then every byte converted
// the way the exchange converts the slices it reads.
QString consoleText(const SimModel &model, const QString &command)
{
    Board board(AnswerStore(), model, Profile::Good);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes));
}

// Texts that tell one board from another: the serial numbers in "syscfg list" and the NAND UID.
QStringList masks()
{
    static const QRegularExpression syscfg(QStringLiteral("^(?:SrNm|MLB#)\\s+(\\S+)"),
                                           QRegularExpression::MultilineOption);
    static const QRegularExpression uid(QStringLiteral("^UID: (\\S+)"), QRegularExpression::MultilineOption);
    QSet<QString> found;
    for (const SimModel &model : SimCatalog::models()) {
        Board board(AnswerStore(), model, Profile::Good);
        for (const auto &[command, pattern] :
             {std::pair{QStringLiteral("syscfg list"), &syscfg}, std::pair{QStringLiteral("nanduid"), &uid}}) {
            const QString body = QString::fromUtf8(board.answerBody(command));
            for (auto it = pattern->globalMatch(body); it.hasNext();)
                found.insert(it.next().captured(1));
        }
    }
    return AutoComparador::longestFirst(QStringList(found.begin(), found.end()));
}

QList<Recording> recordings(const QStringList &commands, const QStringList &maskTexts)
{
    QList<Recording> rows;
    for (const SimModel &model : SimCatalog::models()) {
        for (const QString &command : commands) {
            const QString console = consoleText(model, command);
            rows.append({model.name, command, console,
                         AutoComparador::mask(console, maskTexts, AutoComparador::FillerMarks::Remove)});
        }
    }
    return rows;
}

// Recordings kept under a test's key word rather than a command: the additional-tests and
// battery screens look up the known-good answer of a whole test by that word. Each word takes
// the answer of one command as the screen sends it (the Tristar readout with its double blanks).
QList<std::pair<QString, QString>> keyWordCommands()
{
    return {
        {QStringLiteral("TRISTAR"),
         QStringLiteral("tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx")},
        {QStringLiteral("DRAM"), QStringLiteral("testmemory")},
        {QStringLiteral("BATERIA"), QStringLiteral("battery --properties")},
    };
}

QList<Recording> keyWordRecordings(const QStringList &maskTexts)
{
    QList<Recording> rows;
    for (const SimModel &model : SimCatalog::models()) {
        for (const auto &[keyWord, command] : keyWordCommands()) {
            const QString console = consoleText(model, command);
            rows.append({model.name, keyWord, console,
                         AutoComparador::mask(console, maskTexts, AutoComparador::FillerMarks::Remove)});
        }
    }
    return rows;
}

// Every shipped recording: each listed command, then each key word, for every model.
QList<Recording> allRecordings(const QStringList &commands, const QStringList &maskTexts)
{
    return recordings(commands, maskTexts) + keyWordRecordings(maskTexts);
}

// An SQL text literal that stays readable: CR LF pairs are written as line breaks inside a
// replace(), a lone CR or LF as char(13) or char(10); the value comes back byte for byte.
QString sqlText(const QString &text)
{
    QStringList parts;
    QString pending; // CR LF pairs already turned into LF
    const auto flush = [&] {
        if (pending.isEmpty())
            return;
        const QString literal = u'\'' + QString(pending).replace(u'\'', QStringLiteral("''")) + u'\'';
        parts << (pending.contains(u'\n') ? QStringLiteral("replace(") + literal + QStringLiteral(", char(10), char(13, 10))")
                                          : literal);
        pending.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n') {
            pending += u'\n';
            ++i;
        } else if (c == u'\r' || c == u'\n') {
            flush();
            parts << QStringLiteral("char(%1)").arg(c.unicode());
        } else {
            pending += c;
        }
    }
    flush();
    return parts.isEmpty() ? QStringLiteral("''") : parts.join(QStringLiteral(" || "));
}

QString maskSeed(const QStringList &maskTexts)
{
    QString out;
    QTextStream s(&out);
    s << "-- Demo masking texts: the serial numbers and NAND UIDs of the simulated boards, so that\n"
         "-- recorded answers carry \"xxxxx\u00AE\" in their place. Illustrative values; written by\n"
         "-- vekto-demoseeds; the comparator tests check them.\n";
    for (const QString &m : maskTexts)
        s << "INSERT INTO M (String) VALUES (" << sqlText(m) << ");\n";
    return out;
}

QString dadosSeed(const QList<Recording> &rows, const char *subject)
{
    QString out;
    QTextStream s(&out);
    s << "-- Demo recordings: the simulated phone's good-board answer to " << subject << ", per\n"
         "-- model, exactly as the console shows it (masked like the masking tool leaves it). These are\n"
         "-- illustrative, not readings of real boards. Written by vekto-demoseeds;\n"
         "-- the comparator tests check them against the simulator.\n";
    for (const Recording &r : rows) {
        s << "INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES (" << sqlText(r.model) << ", "
          << sqlText(r.command) << ",\n"
          << sqlText(r.recorded) << ",\n"
          << "'Gravação de demonstração (placa boa simulada).', 'Demo recording (simulated good board).', "
             "'Grabación de demostración (placa buena simulada).');\n";
    }
    return out;
}

} // namespace demo
