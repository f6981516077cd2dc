// The text tables are data a translator edits by hand, so these checks guard against what hand
// editing breaks: a missing or empty cell, a key listed twice, a key whose blank got trimmed, a
// multi-line message whose languages no longer line up, and a key the code uses that the tables
// lack (an unknown key shows nothing at all, which a technician only notices on the bench).
#include "Texts.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

namespace {

const char *languageName(quint8 idioma)
{
    return idioma == 1 ? "pt" : idioma == 2 ? "en" : "es";
}

} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void tablesSound()
    {
        // A missing resource, a malformed row or a key listed twice; the other checks still run.
        const QStringList problems = Texts::tableProblems();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
        QVERIFY(!Texts::dictionaryKeys().isEmpty());
        QVERIFY(!Texts::messageKeys().isEmpty());
    }

    void tableChecks_data()
    {
        QTest::addColumn<QString>("contents");
        QTest::addColumn<qsizetype>("cells");
        QTest::addColumn<QStringList>("expected"); // a piece of each problem, in order
        const QString good = QStringLiteral("# comment\nSalvar\tSalvar\tSave\tGuardar\n\nSalvo \tSalvo \tSaved \tGuardado \n");
        QTest::newRow("sound") << good << Texts::kDictionaryCells << QStringList();
        QTest::newRow("sound with CR LF and a byte-order mark")
            << QChar(0xFEFF) + QString(good).replace(u'\n', QStringLiteral("\r\n")) << Texts::kDictionaryCells
            << QStringList();
        QTest::newRow("key twice") << good + QStringLiteral("Salvar\tGravar\tSave\tGuardar\n") << Texts::kDictionaryCells
                                   << QStringList{QStringLiteral("line 5: key \"Salvar\" is listed twice")};
        QTest::newRow("same key but for the blank") << QStringLiteral("Salvo\ta\tb\tc\nSalvo \ta\tb\tc\n")
                                                    << Texts::kDictionaryCells << QStringList();
        QTest::newRow("missing cell") << QStringLiteral("Salvar\tSalvar\tSave\n") << Texts::kDictionaryCells
                                      << QStringList{QStringLiteral("line 1: 3 cells instead of 4")};
        QTest::newRow("stray tab") << QStringLiteral("Salvar\tSalvar\tSave\tGuardar\t\n") << Texts::kDictionaryCells
                                   << QStringList{QStringLiteral("line 1: 5 cells instead of 4")};
        QTest::newRow("empty key") << QStringLiteral("\tSalvar\tSave\tGuardar\n") << Texts::kDictionaryCells
                                   << QStringList{QStringLiteral("line 1: empty key")};
        QTest::newRow("short message row") << QStringLiteral("MSG_X\t64\ta\tb\tc\td\te\n") << Texts::kMessageCells
                                           << QStringList{QStringLiteral("line 1: 7 cells instead of 8")};
    }
    void tableChecks()
    {
        QFETCH(QString, contents);
        QFETCH(qsizetype, cells);
        QFETCH(QStringList, expected);
        const QStringList problems = Texts::checkTable(contents, cells);
        QCOMPARE(problems.size(), expected.size());
        for (qsizetype i = 0; i < expected.size(); ++i)
            QVERIFY2(problems[i].contains(expected[i]), qPrintable(problems[i]));
    }

    void dictionaryRowComplete_data()
    {
        QTest::addColumn<QString>("key");
        for (const QString &k : Texts::dictionaryKeys())
            QTest::newRow(qPrintable(k)) << k;
    }
    void dictionaryRowComplete()
    {
        QFETCH(QString, key);
        const QString pt = Texts::Traduz(key, 1);
        for (quint8 idioma = 1; idioma <= 3; ++idioma) {
            const QString text = Texts::Traduz(key, idioma);
            QVERIFY2(!text.trimmed().isEmpty(), languageName(idioma));
            // Callers append the next piece directly, so a trailing blank must be in every language.
            QCOMPARE(text.endsWith(u' '), pt.endsWith(u' '));
            QVERIFY2(!text.startsWith(u' '), languageName(idioma));
        }
    }

    void unknownGivesNothing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<quint8>("idioma");
        QTest::addColumn<bool>("message"); // Mensagem rather than Traduz
        QTest::newRow("not a key") << QStringLiteral("Texto que não existe") << quint8(2) << false;
        QTest::newRow("blank dropped") << QStringLiteral("Deseja excluir o comando") << quint8(1) << false;
        QTest::newRow("other case") << QStringLiteral("conectar") << quint8(3) << false;
        QTest::newRow("empty key") << QString() << quint8(1) << false;
        QTest::newRow("language 0") << QStringLiteral("Conectar") << quint8(0) << false;
        QTest::newRow("language 4") << QStringLiteral("Conectar") << quint8(4) << false;
        QTest::newRow("unknown message") << QStringLiteral("MSG_NAO_EXISTE") << quint8(1) << true;
        QTest::newRow("dictionary key as message") << QStringLiteral("Conectar") << quint8(2) << true;
        QTest::newRow("message in other case") << QStringLiteral("msg_16") << quint8(1) << true;
        QTest::newRow("message language 4") << QStringLiteral("MSG_16") << quint8(4) << true;
    }
    void unknownGivesNothing()
    {
        QFETCH(QString, key);
        QFETCH(quint8, idioma);
        QFETCH(bool, message);
        if (message)
            QVERIFY(!Texts::Mensagem(key, idioma, QStringLiteral("3")).has_value());
        else
            QCOMPARE(Texts::Traduz(key, idioma), QString());
    }

    void cancelledAutoTestCaption()
    {
        // The I2C run tells "running" from "at rest" by the caption's first letter "C", and
        // rebuilds the resting caption from two pieces after a cancel.
        for (quint8 idioma = 1; idioma <= 3; ++idioma) {
            QVERIFY(Texts::Traduz(QStringLiteral("Cancelar"), idioma).startsWith(u'C'));
            const QString rest = Texts::Traduz(QStringLiteral("Auto Teste"), idioma);
            QVERIFY(!rest.startsWith(u'C'));
            QCOMPARE(Texts::Traduz(QStringLiteral("Auto "), idioma) + Texts::Traduz(QStringLiteral("Teste"), idioma),
                     rest);
        }
    }

    void messageRowComplete_data()
    {
        QTest::addColumn<QString>("key");
        for (const QString &k : Texts::messageKeys())
            QTest::newRow(qPrintable(k)) << k;
    }
    void messageRowComplete()
    {
        QFETCH(QString, key);
        const auto pt = Texts::Mensagem(key, 1, QStringLiteral("7"));
        QVERIFY(pt);
        const qsizetype lines = pt->text.count(QStringLiteral("\r\n"));
        for (quint8 idioma = 1; idioma <= 3; ++idioma) {
            const auto m = Texts::Mensagem(key, idioma, QStringLiteral("7"));
            QVERIFY(m);
            QVERIFY2(!m->title.trimmed().isEmpty(), languageName(idioma));
            QVERIFY2(!m->text.trimmed().isEmpty(), languageName(idioma));
            // The languages are translations of the same lines, in the same order.
            QCOMPARE(m->text.count(QStringLiteral("\r\n")), lines);
            // A line break is always CR LF; a bare LF or CR would show differently per platform.
            QCOMPARE(m->text.count(u'\n'), lines);
            QCOMPARE(m->text.count(u'\r'), lines);
            QVERIFY2(!m->text.contains(u'{') && !m->title.contains(u'{'), "placeholder left unfilled");
            QCOMPARE(m->icon, pt->icon);
        }
        // Only the missing database stops the program.
        QCOMPARE(pt->icon == Texts::Icon::Critical, key == QLatin1String("MSG_CONFIG_AUSENTE"));
    }

    void portFilledInEveryLanguage()
    {
        for (quint8 idioma = 1; idioma <= 3; ++idioma) {
            const auto m = Texts::Mensagem(QStringLiteral("MSG_PORTA_EM_USO"), idioma, QStringLiteral("12"));
            QVERIFY2(m && m->text.count(QStringLiteral("COM 12 ")) == 1, languageName(idioma));
        }
    }

    void everyLiteralKeyTheCodeUsesExists()
    {
        const QDir source(QStringLiteral(VEKTO_SOURCE_DIR));
        if (!source.exists(QStringLiteral("core")))
            QSKIP("the sources are not beside the build");
        const QRegularExpression traduz(QStringLiteral("Traduz\\(\\s*QStringLiteral\\(\"((?:[^\"\\\\]|\\\\.)*)\"\\)"));
        const QRegularExpression mensagem(QStringLiteral("QStringLiteral\\(\"((?:MSG_|SOMENTE_)[A-Z0-9_]*)\"\\)"));
        const QStringList dictionary = Texts::dictionaryKeys();
        const QStringList messages = Texts::messageKeys() + dictionary;
        QStringList missing;
        int seen = 0;
        for (const char *folder : {"core", "comparator", "refs", "rails", "chips", "boardtests", "boardcheck", "platform", "cli", "app"}) {
            QDirIterator it(source.filePath(QString::fromLatin1(folder)), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                            QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                QFile file(it.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString text = QString::fromUtf8(file.readAll());
                for (const auto &[pattern, keys] : {std::pair{&traduz, &dictionary}, std::pair{&mensagem, &messages}}) {
                    for (auto m = pattern->globalMatch(text); m.hasNext(); ++seen) {
                        const QString key = m.next().captured(1);
                        if (!keys->contains(key))
                            missing << QStringLiteral("%1: \"%2\"").arg(QFileInfo(file).fileName(), key);
                    }
                }
            }
        }
        QVERIFY2(seen > 20, "the scan found almost no keys: has the way screens translate changed?");
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_texts.moc"
