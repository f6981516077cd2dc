// The text tables are data a translator edits by hand, so these checks guard against what hand
// editing breaks: a missing or empty cell, a key listed twice, a key whose blank got trimmed, a
// quoted text that drifted, a multi-line message whose languages no longer line up.
#include "Texts.h"

#include <QtTest>

namespace {

// Every key the screens' code passes to Traduz.
const char *const kScreenKeys[] = {
    "TensoesRF", "Tensões", "Executando Comando", "Falhas i2c", "Testes Adicionais", "Observe a tela",
    "Outros", "Nenhuma falha detectada em I2C", "Baixa", "Exemplos", "SYNC_1", "Processo syscfg",
    "Buck6GPU", "Resultado do teste estão sendo exibidos na tela do dispositio",
    "Clique em OK para finalizar", "Teste de Funcionamento de Botões", "SYNC_2", "ALTERADO", "NORMAL",
    "Bateria", "Auto Teste", "Teste Finalizados", "Exibir", "Ocultar", "Auto Comparador OK",
    "Auto Comparador TOOL", "Idioma", "Idiomas disponíveis", "Porta COM", "Conectado", "Conectar",
    "Conectando", "Sincronização", "Comandos", "Comunicando", "Sem Medição", "Gravação", "INGLÊS",
    "ESPANHOL", "PORTUGUÊS", "Referência", "Leitura", "Atualizar", "Decimais", "Casas Decimais",
    "Desconectar", "Desconectado", "Desconectando", "Testes IC's",
    "Porta COM de comunicação com o dispositivo", "Selecione o modelo do dispositivo", "Modelo",
    "Visualizar todos os comandos", "Modelo do dispositivo", "TESTE 15s", "TESTE 40s", "Teste",
    "Atualização", "Testar", "Testar Todos Níveis", "Nível", "Desligar", "Cancelar", "Versão",
    "Resultado do teste:", "Testes de Leitura I2C", "Visualizar Diagrama PDF", "Resultado do Auto Teste:",
    "Realizando Leitura...", "Testes de Comunicação RF", "Testes de Display", "Modelo:", "Sobre",
    "MSG_UPDATE_OBRIGATORIA", "MSG_UPDATE_OBRIGATORIA_TITULO", "Suporte Remoto", "Suporte", "Gravar",
    "Dados", "Componente", "Desenvolvido por", "Executar Leitura", "PDFs Nand", "Classificação",
    "Aguarde...", "Processando comando", "Informações adicionais", "Informações", "Nao Purple",
    "Autorais", "Modo Comandos e Comparador", "Leitura do dispositivo conectado:",
    "Testes de Memória Nand", "Tamanho da NAND", "Identificação Única NAND", "Informações da NAND",
    "Seleção de IC's a serem exibidos", "Comparador: (Dispositivos Gravados)", "Copiar Dados", "Salvar",
    "Malha", "Excluir", "Reiniciar Dispositivo", "Informações sobre os dados:", "VAR", "VAR2",
    "Limpar", "Deseja substituir os dados gravados do lado comparador?", "Deseja salvar as alterações?",
    "Deseja salvar?", "Dados não localizados", "Deseja excluir os dados gravados?",
    "Digite o comando a ser gravado:", "Novo Comando", "Clique duplo para enviar texto ao campo comandos",
    "Deseja excluir o comando ", "Excluir Comando", "Atualização disponível", "Dados UPDATE1",
    "Dados UPDATE2", "ANALISE COMPLETA", "REPITA PROCESSO", "COMUNICAÇÃO OK", "COMUNICAÇÃO OFF",
    "Comunicação", "Executar", "Adicionar Comando",
    "Digite ou seleciona na lista suspença o comando desejado", "Excluir Dados Comparador",
    "Limpar dados após comando", "Apagar Dados", "Salvar Alterações",
    "Copiar Dados para o lado Comparador", "VALORES DE REFERÊNCIA RF", "Não disponível para 6/6P",
    "TermosYes", "TermosNo", "Erro_Nand",
};

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
};

// Message keys the program raises.
const char *const kMessageKeys[] = {
    "MSG_PORTA", "MSG_16", "MSG_PORTA_NAO_RESPONDE", "MSG_PORTA_EM_USO", "MSG_PORTA_INVALIDA",
    "MSG_SELECIONE_MODELO", "MSG_SYSCFG", "MSG_INTERNET", "MSG_DADOS_SYNC", "MSG_NAO_PARA_IP6",
    "MSG_ERRO_NAND", "MSG_UPDATE_OBRIGATORIA", "SOMENTE_X", "MSG_CONFIG_AUSENTE",
};

// Dictionary keys the program needs beyond the screens' captions.
const char *const kProgramKeys[] = {
    "DB_TITULO", "DB_SOMENTE_LEITURA", "DB_BLOQUEADO", "DB_CORROMPIDO", "DB_SEM_TABELAS",
    "DB_ERRO_GRAVACAO", "PDF_AUSENTE", "PDF_AUSENTE_TITULO",
};

struct Quoted
{
    const char *key;
    quint8 idioma;
    const char *text;
};

// Texts the program must show word for word.
const Quoted kQuotedTexts[] = {
    {"TensoesRF", 1, "Tensões RF"},
    {"TensoesRF", 2, "RF Voltage"},
    {"TensoesRF", 3, "RF Voltage"},
    {"Falhas i2c", 1, "Possíveis falhas relacionadas ao barramento:"},
    {"Falhas i2c", 2, "Possible bus-related failures:"},
    {"Falhas i2c", 3, "Posibles fallas relacionadas con el bus:"},
    {"Tensões", 1, "Tensões"},
    {"Tensões", 2, "Power Supplies"},
    {"Tensões", 3, "Tensiones"},
    {"Atualização disponível", 1, "Existe uma atualização disponível. Deseja atualizar agora?"},
    {"Dados UPDATE1", 1, "Foi localizado dados salvos ou alterados por você na versão anterior."},
    {"Dados UPDATE2", 1, "Deseja importar esses dados para essa nova versão?"},
    {"MSG_UPDATE_OBRIGATORIA", 1, "Atualização obrigatória para continuar utilizando o aplicativo"},
    {"MSG_UPDATE_OBRIGATORIA_TITULO", 1, "Atualização Obrigatória"},
    {"VAR", 1, "* Tensões de malhas VAR apresentam variações constantes de valores"},
    {"VAR", 2, "* VAR lines voltages have constant variations in values"},
    {"VAR2", 1, "* Atenção malhas GPU e CÂMERA não apresentam valores significativos ou apresentam "
                "'Sem Medição' em Modo Purple"},
    {"Buck6GPU", 1, "* Atenção: IP 6 / IP 6 Plus sempre apresenta resultado como 'FAIL' no buck1, mesmo "
                    "estando OK, se tratar de malha de GPU."},
    {"* Tensões de malhas VAR apresentam variações constantes de valores", 2,
     "* VAR lines voltages have constant variations in values"},
    {"Resultado do teste estão sendo exibidos na tela do dispositio", 1,
     "Resultado do teste estão sendo exibidos na tela do dispositio"},
    {"Deseja excluir o comando ", 1, "Deseja excluir o comando "},
    {"Salvo ", 1, "Salvo "},
};

struct QuotedMessage
{
    const char *key;
    quint8 idioma;
    const char *title; // nullptr: not quoted
    const char *text;  // nullptr: not quoted; lines separated by "\r\n"; the port is "7"
};

const QuotedMessage kQuotedMessages[] = {
    {"MSG_16", 1, "Porta COM acima do padrão de comunicação",
     "O software funciona corretamente até a Porta COM 16\r\n"
     "Se sua Box ou Cabo comunicação estiver acima da porta 16 altere-a para uma de número inferior, "
     "desconecte e reinicie o sistema.\r\n"
     "Em caso de dúvida entre em contato com o suporte técnico."},
    {"MSG_PORTA_EM_USO", 1, "Porta COM em uso",
     "Porta de comunicação COM 7 em uso por outro aplicativo, finalize o aplicativo da Box ou Cabo e tente "
     "novamente."},
    {"MSG_PORTA_INVALIDA", 1, "Porta COM inválida", "Porta de comunicação COM 7 inválida, selecione outra"},
    {"MSG_PORTA_NAO_RESPONDE", 1, "Erro ao conectar",
     "Dispositivo não localizado na Porta COM selecionada\r\nou não está respondendo.\r\n"
     "Altere a Porta COM e tente novamente ou aguarde."},
    {"MSG_PORTA", 1, "Erro ao Conectar",
     "SIGA OS PASSOS:\r\n1. Inicie o dispositivo em modo purple\r\n"
     "2. Feche o software da Box ou Cabo de comunicação\r\n3. Selecione a Porta COM\r\n"
     "4. Clique em Conectar\r\n"
     "5. Caso o dispositivo parou de responder reinicie o dispositivo e repita os passos"},
    {"MSG_ERRO_NAND", 1, "Erro na leitura NAND", "Verificar Mem Nand, possível problema ou falta de dados!"},
    {"MSG_SELECIONE_MODELO", 1, "Modelo do Dispositivo",
     "Selecione o Modelo do Dispositivo para uma análise e comparação correta!"},
    {"MSG_SYSCFG", 1, nullptr, "Comandos com SYSCFG não são permitidos!"},
    {"MSG_INTERNET", 1, nullptr, "Computador não conectado a internet"},
    {"MSG_DADOS_SYNC", 1, nullptr, "Dados sincronizados com sucesso!"},
    {"MSG_NAO_PARA_IP6", 1, nullptr, "Esse comando não funciona para IP6/6 Plus/6s/6s Plus"},
    {"MSG_UPDATE_OBRIGATORIA", 1, "Atualização Obrigatória",
     "Atualização obrigatória para continuar utilizando o aplicativo"},
    {"MSG_16", 2, "COM Port above the communication standard", nullptr},
    {"MSG_PORTA_EM_USO", 2, "Port COM in use", nullptr},
    {"MSG_PORTA_INVALIDA", 2, "Port COM invalid", nullptr},
    {"MSG_PORTA_NAO_RESPONDE", 2, "Error connecting", nullptr},
    {"MSG_PORTA", 2, "Error Connecting", nullptr},
    {"MSG_ERRO_NAND", 2, "Error reading NAND", "Check Mem Nand, possible problem or missing data!"},
    {"MSG_SELECIONE_MODELO", 2, "Device Model", nullptr},
    {"MSG_SYSCFG", 2, nullptr, "Commands with SYSCFG are not allowed!"},
    {"MSG_INTERNET", 2, nullptr, "Computer not connected to internet"},
    {"MSG_NAO_PARA_IP6", 2, nullptr, "This command does not work for IP6/6 Plus/6s/6s Plus"},
};

// Before any language is known the missing database is reported in all three at once.
const char kConfigAusenteTitle[] = "Arquivo ausente - File not found";
const char kConfigAusenteText[] = "BR - Arquivo: 'Config.vkt' ausente, reinstale o software\r\n"
                                  "US - Config.vkt' missing, reinstall software\r\n"
                                  "ES - Archivo: falta 'Config.vkt', reinstale el software";

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

    void requiredKeysPresent()
    {
        const QStringList dictionary = Texts::dictionaryKeys();
        for (const char *k : kScreenKeys)
            QVERIFY2(dictionary.contains(u8(k)), k);
        for (const char *k : kProgramKeys)
            QVERIFY2(dictionary.contains(u8(k)), k);
        // Every raised message exists, and only the missing database stops the program.
        for (const char *k : kMessageKeys) {
            const auto m = Texts::Mensagem(u8(k), 2);
            QVERIFY2(m, k);
            const auto icon = qstrcmp(k, "MSG_CONFIG_AUSENTE") == 0 ? Texts::Icon::Critical : Texts::Icon::Information;
            QVERIFY2(m->icon == icon, k);
        }
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

    void quotedText_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<quint8>("idioma");
        QTest::addColumn<QString>("expected");
        for (const Quoted &q : kQuotedTexts)
            QTest::addRow("%s %s", q.key, languageName(q.idioma)) << u8(q.key) << q.idioma << u8(q.text);
    }
    void quotedText()
    {
        QFETCH(QString, key);
        QFETCH(quint8, idioma);
        QFETCH(QString, expected);
        QCOMPARE(Texts::Traduz(key, idioma), expected);
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
    }

    void quotedMessage_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<quint8>("idioma");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        for (const QuotedMessage &q : kQuotedMessages)
            QTest::addRow("%s %s", q.key, languageName(q.idioma))
                << u8(q.key) << q.idioma << (q.title ? u8(q.title) : QString()) << (q.text ? u8(q.text) : QString());
        for (quint8 idioma = 1; idioma <= 3; ++idioma)
            QTest::addRow("MSG_CONFIG_AUSENTE %s", languageName(idioma))
                << QStringLiteral("MSG_CONFIG_AUSENTE") << idioma << u8(kConfigAusenteTitle) << u8(kConfigAusenteText);
    }
    void quotedMessage()
    {
        QFETCH(QString, key);
        QFETCH(quint8, idioma);
        QFETCH(QString, title);
        QFETCH(QString, text);
        const auto m = Texts::Mensagem(key, idioma, QStringLiteral("7"));
        QVERIFY(m);
        if (!title.isNull())
            QCOMPARE(m->title, title);
        if (!text.isNull())
            QCOMPARE(m->text, text);
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
