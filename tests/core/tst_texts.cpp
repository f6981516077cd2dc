// The text tables are data a translator edits by hand, so these checks guard against what hand
// editing breaks: a missing or empty cell, a key listed twice, a key whose blank got trimmed, a
// multi-line message whose languages no longer line up. That every key the code uses exists is
// tst_keysused's scan of the sources.
#include "Texts.h"

#include <QtTest>

namespace {

// Keys that stand for a longer text, or name a text of the program's own; every other key is
// the Portuguese caption itself.
const char *const kSymbolicKeys[] = {
    "TensoesRF", "Falhas i2c", "SYNC_1", "SYNC_2", "Buck6GPU", "MSG_UPDATE_OBRIGATORIA",
    "MSG_UPDATE_OBRIGATORIA_TITULO", "Nao Purple", "Autorais", "VAR", "VAR2", "Atualização disponível",
    "Dados UPDATE1", "Dados UPDATE2", "TermosYes", "TermosNo", "Erro_Nand", "DB_TITULO",
    "DB_SOMENTE_LEITURA", "DB_BLOQUEADO", "DB_CORROMPIDO", "DB_SEM_TABELAS", "DB_ERRO_GRAVACAO",
    "PDF_AUSENTE", "PDF_AUSENTE_TITULO", "PORTA_NENHUMA", "PORTA_SIMULADOR",
    "IMPORT_AUSENTE", "IMPORT_VAZIO", "IMPORT_NAO_BD", "IMPORT_ILEGIVEL", "IMPORT_BLOQUEADO",
    "IMPORT_ESQUEMA", "IMPORT_MESMO_ARQUIVO", "IMPORT_ESCOLHER", "MIGRACAO_TITULO", "MIGRACAO_OK",
    "MIGRACAO_FALHOU", "TERMOS_TITULO", "TERMOS_TEXTO", "LINK_VAZIO", "LINK_RECUSADO",
    "REF_APRENDER", "REF_DESFAZER", "REF_PERGUNTA_APRENDER", "REF_PERGUNTA_DESFAZER", "REF_SEM_GRAVACOES",
    "REF_NADA_A_DESFAZER", "REF_LEITURA_EM_CURSO", "REF_NOTA_DEMO", "REF_ORIGEM_DEMO", "REF_ORIGEM_APRENDIDA",
    "REF_ORIGEM_SERIES", "REF_ORIGEM_IMPORTADA", "REF_ORIGEM_DESCONHECIDA", "REF_ORIGEM_ALTERADA",
    "REF_ARQ_ILEGIVEL", "REF_ARQ_INVALIDO", "REF_ARQ_VERSAO", "REF_ARQ_MODELO", "REF_IMPORT_FALHOU", "REF_CONFLITOS",
    "REF_MODELO_SEM_MALHAS", "REF_APRENDER_I2C", "REF_PERGUNTA_I2C", "REF_I2C_ENTRAM", "REF_I2C_SAEM",
    "REF_I2C_SEM_MUDANCA",
};

QString u8(const char *s)
{
    return QString::fromUtf8(s);
}

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
        static const QSet<QString> symbolic(std::begin(kSymbolicKeys), std::end(kSymbolicKeys));
        QFETCH(QString, key);
        const QString pt = Texts::Traduz(key, 1);
        if (!symbolic.contains(key))
            QCOMPARE(pt, key);
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
        for (quint8 idioma = 1; idioma <= 3; ++idioma) {
            const char *lang = languageName(idioma);
            QTest::addRow("not a key %s", lang) << QStringLiteral("Texto que não existe") << idioma << false;
            QTest::addRow("blank dropped %s", lang) << QStringLiteral("Deseja excluir o comando") << idioma << false;
            QTest::addRow("other case %s", lang) << QStringLiteral("conectar") << idioma << false;
            QTest::addRow("empty key %s", lang) << QString() << idioma << false;
        }
        QTest::addRow("language 0") << QStringLiteral("Conectar") << quint8(0) << false;
        QTest::addRow("language 4") << QStringLiteral("Conectar") << quint8(4) << false;
        QTest::addRow("language 255") << QStringLiteral("TensoesRF") << quint8(255) << false;
        QTest::newRow("unknown message") << QStringLiteral("MSG_NAO_EXISTE") << quint8(1) << true;
        QTest::newRow("dictionary key as message") << QStringLiteral("Conectar") << quint8(2) << true;
        QTest::newRow("title key as message") << QStringLiteral("MSG_UPDATE_OBRIGATORIA_TITULO") << quint8(1) << true;
        QTest::newRow("message in other case") << QStringLiteral("msg_16") << quint8(1) << true;
        QTest::newRow("message language 0") << QStringLiteral("MSG_16") << quint8(0) << true;
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
        for (const char *k : {"MSG_PORTA_EM_USO", "MSG_PORTA_INVALIDA"}) {
            for (quint8 idioma = 1; idioma <= 3; ++idioma) {
                const auto m = Texts::Mensagem(u8(k), idioma, QStringLiteral("12"));
                QVERIFY2(m && m->text.count(QStringLiteral("COM 12 ")) == 1, k);
                const auto empty = Texts::Mensagem(u8(k), idioma);
                QVERIFY2(empty && empty->text.contains(QStringLiteral("COM  ")), k);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestTexts)
#include "tst_texts.moc"
