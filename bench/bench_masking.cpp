// Masking a long answer with many masks, against replacing mask after mask as before, in one
// run: a 300 KB answer and 1,000 masks (serial-number-like texts, a few dozen of them present);
// the cost of getting the masks of M for an answer when M has not changed; and masks that would
// never end by replacing one after the other (twelve "x") or that nest over a run of one letter.

#include "AutoComparador.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "MaskTable.h"
#include "Masker.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include "BenchTiming.h"

#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>

namespace {

template<typename Fn> double timeMs(int rounds, Fn fn)
{
    return medianRunNs(rounds, fn) / 1e6;
}

QString serial(QRandomGenerator &random)
{
    static const char digits[] = "0123456789ABCDEFGHJKLMNPQRSTUVWXYZ";
    QString s;
    for (int i = 0; i < 12; ++i)
        s += QLatin1Char(digits[random.bounded(34)]);
    return s;
}

QString replaceOneAfterAnother(QString text, const QStringList &masks)
{
    for (const QString &m : AutoComparador::longestFirst(masks))
        if (!m.isEmpty())
            text.replace(m, AutoComparador::Placeholder, Qt::CaseInsensitive);
    return text;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QRandomGenerator random(14);

    QStringList masks;
    for (int i = 0; i < 1000; ++i)
        masks << serial(random);
    QString answer = QStringLiteral("\r\nsyscfg list\r\r\n");
    for (int line = 0; answer.size() < 300 * 1024; ++line) {
        // Every 50th line carries one of the first 40 masks, in lower case half of the time.
        QString value = line % 50 == 0 ? masks.at((line / 50) % 40) : serial(random);
        if (line % 100 == 0)
            value = value.toLower();
        answer += QStringLiteral("Key%1: %2 0x%3\r\n").arg(line).arg(value).arg(line * 7919, 8, 16, QLatin1Char('0'));
    }
    answer += QStringLiteral("[0000001A:0000BEEF] :-) ");

    const QString expected = replaceOneAfterAnother(answer, masks);
    const Masker masker = AutoComparador::masker(masks, AutoComparador::FillerMarks::Remove);
    const bool same = masker.mask(answer) == expected;
    const double before = timeMs(3, [&] { replaceOneAfterAnother(answer, masks); });
    const double build = timeMs(20, [&] { AutoComparador::masker(masks, AutoComparador::FillerMarks::Remove); });
    const double onePass = timeMs(20, [&] { masker.mask(answer); });
    out << "answer " << answer.size() / 1024 << " K characters, " << masks.size() << " masks\n"
        << "  mask after mask (before):        " << before << " ms\n"
        << "  one pass:                        " << onePass << " ms (+ " << build
        << " ms to build the automaton once per change of M)\n"
        << "  ratio:                           " << before / onePass << (same ? "" : "  (RESULTS DIFFER)") << '\n';

    // M read for every answer, against a table that only reads when the file changed.
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("Config.vkt"));
    QString error;
    if (!DatabaseBuilder::build(QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql"), {}, path, &error)) {
        out << "no database: " << error << '\n';
        return 1;
    }
    Database db(path);
    for (const QString &m : std::as_const(masks))
        db.addMaskText(m);
    MaskTable table(db);
    table.masker();
    const double everyAnswer = timeMs(20, [&] {
        AutoComparador::masker(db.maskTexts(), AutoComparador::FillerMarks::Remove);
    });
    const double unchanged = timeMs(200, [&] { table.masker(); });
    out << "masks of M for an answer, 1,000 rows\n"
        << "  read and built at every answer:  " << everyAnswer << " ms\n"
        << "  M unchanged since the last one:  " << unchanged << " ms\n";

    // Masks that replacing one after the other never finishes with: each "x" re-masks the
    // "xxxxx®" left by the one before. Not run the old way: it does not end.
    QString withX = answer;
    withX.replace(QStringLiteral("0x"), QStringLiteral("x0"));
    const QStringList twelveX(12, QStringLiteral("x"));
    const Masker xMasker = AutoComparador::masker(twelveX, AutoComparador::FillerMarks::Remove);
    const double runaway = timeMs(5, [&] { xMasker.mask(withX); });
    out << "twelve masks \"x\" over the same answer: " << runaway << " ms, "
        << xMasker.mask(withX).size() / 1024 << " K characters out\n";

    // The worst case known: 200 masks "x", "xx", ... nested over 300 K "x": every mask occurs at
    // almost every position, so occurrences are collected mask by mask in memory of the text.
    QStringList nested;
    for (int n = 1; n <= 200; ++n)
        nested << QString(n, u'x');
    const QString run(300 * 1024, u'x');
    const Masker nestedMasker = AutoComparador::masker(nested, AutoComparador::FillerMarks::Remove);
    const double worst = timeMs(3, [&] { nestedMasker.mask(run); });
    out << "200 nested masks over 300 K \"x\": " << worst << " ms\n";
    return same ? 0 : 1;
}
