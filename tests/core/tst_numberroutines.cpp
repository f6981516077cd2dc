// The number routines must give the same texts whatever the machine's locale, so every table
// runs once per locale.
#include "NumberRoutines.h"

#include <QLocale>
#include <QtTest>
#include <clocale>

class TestNumberRoutines : public QObject
{
    Q_OBJECT


private slots:
    void converteMilivolts_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("valid");
        const struct { const char *in, *out; bool valid; } rows[] = {
            {"5.0", "0.005", true},        {"45.0", "0.045", true},
            {"998.0", "0.998", true},      {"4998.000", "4.998", true},
            {"12345.0", "12.345", true},   {"123456.0", "123.456", true},
            {"1234567.0", "1234567", true}, {"-45.5", "-0.045", true},
            {"-152.5", "-0.152", true},    {"0.0", "0.000", true},
            {"850.", "0.850", true},       {"-12.0", "-0.012", true},
            {".5", "", true},              {"-.5", "-", true},
            {"4998", "", false},           {"", "", false},
            {"-", "", false},
        };
        for (const char *loc : {"pt_BR", "es_ES", "en_US"})
            for (const auto &r : rows)
                QTest::addRow("%s %s", loc, r.in) << QString::fromUtf8(r.in) << QString::fromUtf8(r.out) << r.valid;
    }
    void converteMilivolts()
    {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        QFETCH(bool, valid);
        applyLocale();
        const auto result = ConverteMilivolts(input);
        QCOMPARE(result.has_value(), valid);
        if (valid)
            QCOMPARE(*result, expected);
    }

    void oneDecimal_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");
        const struct { const char *in, *out; } rows[] = {
            {"3,14", "3.1"}, {"12 5", "12.5"}, {"7", "7"}, {"42", "4"},
            {"1.999", "1.9"}, {"3.", "3."}, {"", ""}, {"-0,27", "-0.2"},
            {"1,2,3", "1.2"},
        };
        for (const char *loc : {"pt_BR", "es_ES", "en_US"})
            for (const auto &r : rows)
                QTest::addRow("%s '%s'", loc, r.in) << QString::fromUtf8(r.in) << QString::fromUtf8(r.out);
    }
    void oneDecimal()
    {
        QFETCH(QString, input);
        QFETCH(QString, expected);
        applyLocale();
        QCOMPARE(oneDecimalText(input), expected);
    }

    void calculaPorcentagem_data()
    {
        QTest::addColumn<QString>("reading");
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("expected");
        const struct { const char *r, *f, *out; } rows[] = {
            // the fixed bands, at and beside each boundary
            {"4.998", "5.000", "-0,2"}, {"5.000", "5.000", "0"},
            {"0.853", "0.850", "0,3"},  {"0.852", "0.850", "0,2"},
            {"0.851", "0.850", "0,1"},  {"0.849", "0.850", "-0,1"},
            {"0.847", "0.850", "-0,3"}, {"0.854", "0.850", "0,4"},
            {"0.846", "0.850", "-0,4"}, {"5.100", "5.000", "2,0"},
            {"0.900", "0.850", "5,8"},  {"0.800", "0.850", "-5,8"},
            {"1.700", "0.850", "100"},  {"0.000", "0.850", "-100"},
            {"0.950", "0.850", "11,7"}, {"3.300", "3.000", "10"},
            {"3.297", "3.000", "9,9"},  {"2.700", "3.000", "-10"},
            {"4.525", "4.500", "0,5"},  {"4.455", "4.500", "-1,0"},
            {"5.250", "5.000", "5,0"},  {"-6.700", "-6.700", "0"},
            {"-7.000", "-6.700", "4,4"}, {"12,34", "12,00", "0,1"},
            {"10.000", "0.010", "99900"}, {"1.000", "1000.000", "-99,9"},
            // The bands come before the division: a reading within 3 units of a zero reference is fine.
            {"0.002", "0", "0,2"},
            // No per cent at all: a zero reference, no reading, no reference.
            {"0.500", "0", "none"}, {"", "0.850", "none"}, {"Sem Medição*", "0.850", "none"}, {"0.850", "", "none"},
        };
        for (const char *loc : {"pt_BR", "es_ES", "en_US"})
            for (const auto &r : rows)
                QTest::addRow("%s %s vs %s", loc, r.r, r.f)
                    << QString::fromUtf8(r.r) << QString::fromUtf8(r.f) << QString::fromUtf8(r.out);
        // Both numbers fit a double; the deviation, or the difference, does not.
        const QString huge = u'1' + QString(308, u'0');
        for (const char *loc : {"pt_BR", "es_ES", "en_US"}) {
            QTest::addRow("%s deviation beyond a double", loc) << huge << QStringLiteral("0.001") << QStringLiteral("none");
            QTest::addRow("%s difference beyond a double", loc) << huge << u'-' + huge << QStringLiteral("none");
        }
    }
    void calculaPorcentagem()
    {
        QFETCH(QString, reading);
        QFETCH(QString, reference);
        QFETCH(QString, expected);
        applyLocale();
        const auto result = CalculaPorcentagem(reading, reference);
        QCOMPARE(result.value_or(QStringLiteral("none")), expected);
        if (!result) // the verdicts' deviation has no number where the text has none
            QVERIFY(!::desvioPercentual(reading, reference).has_value());
    }

private:
    void applyLocale()
    {
        const QString tag = QString::fromUtf8(QTest::currentDataTag());
        const QString name = tag.section(u' ', 0, 0);
        QLocale::setDefault(QLocale(name));
        std::setlocale(LC_ALL, (name + QStringLiteral(".UTF-8")).toUtf8().constData());
    }
};

QTEST_MAIN(TestNumberRoutines)
#include "tst_numberroutines.moc"
