#include "Master.h"
#include "ui_Master.h"

#include "AutoComparador.h"
#include "BoundRecordView.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "Dialogs.h"
#include "ProgramPdf.h"
#include "Session.h"
#include "Shell.h"
#include "fmHelp.h"
#include "zAjustes.h"
#include "ConsoleFile.h"
#include "ConsoleTextEdit.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QTextCursor>
#include <QTextDocument>

Master::Master(const ScreenContext &ctx, Shell &shell, std::function<void(QWidget *)> showWindow,
               QWidget *parent)
    : TestScreen(ctx, QStringLiteral("Master"), parent), ui(std::make_unique<Ui::Master>()), m_shell(shell),
      m_showWindow(std::move(showWindow)), m_db(std::make_unique<Database>(ctx.session.configPath())), m_masks(*m_db)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);

    m_data1 = new BoundRecordView(this);
    m_data1->bind(ui->txtComparador, QStringLiteral("Dados"));
    m_data1->bind(ui->txtInfoDados, QStringLiteral("Info"));
    m_data1->bind(ui->txtInfoDados2, QStringLiteral("Info2"));
    m_data1->bind(ui->txtInfoDados3, QStringLiteral("Info3"));
    m_data2 = new BoundRecordView(this);
    m_data2->bind(ui->txtInfoComandos, QStringLiteral("Info"));
    m_data2->bind(ui->txtInfoComandos2, QStringLiteral("Info2"));
    m_data2->bind(ui->txtInfoComandos3, QStringLiteral("Info3"));

    ui->lbAutoComparador->setVisible(false);
    ui->btSend->setEnabled(session().validatedAndIdle());

    // No model and command known yet: the recorded side starts empty, the notes on the first command.
    m_data1->clear();
    m_data2->requery(m_db->comandosQuery());

    exchange().registerReceiver(QString::fromLatin1(ScreenId), this,
                                AnswerReceiver{[this](const QString &answer) { handOver(answer); }, {}});

    connect(ui->btSend, &QPushButton::clicked, this, &Master::send);
    connect(ui->txtComandos->lineEdit(), &QLineEdit::returnPressed, this, &Master::send);
    connect(ui->txtComandos, &QComboBox::editTextChanged, this, &Master::BuscaDadosGravados);
    connect(ui->txtComandos, &QComboBox::textActivated, this, &Master::BuscaDadosGravados);
    connect(ui->btSalvar, &QPushButton::clicked, this, &Master::recordAnswer);
    connect(ui->btExcluir, &QPushButton::clicked, this, &Master::deleteRecordedAnswer);
    connect(ui->btSalvarAtualizacoes, &QPushButton::clicked, this, &Master::saveEdits);
    connect(ui->btNovo, &QPushButton::clicked, this, &Master::addCommand);
    connect(ui->btApagar, &QPushButton::clicked, this, &Master::deleteCommand);
    connect(ui->btReiniciar, &QPushButton::clicked, this, &Master::restartDevice);
    connect(ui->btLimpar, &QPushButton::clicked, this, &Master::clearConsole);
    connect(ui->btHelp, &QPushButton::clicked, this, &Master::showHelp);
    connect(ui->btHelpPdf, &QPushButton::clicked, this, &Master::openHelpPdf);
    connect(ui->Command1, &QPushButton::clicked, this, &Master::maskRecordedAnswer);
    connect(ui->Command2, &QPushButton::clicked, this, &Master::addMaskText);
    connect(ui->Command3, &QPushButton::clicked, this, &Master::openAdjustments);
    connect(ui->HScroll1, &QScrollBar::valueChanged, this, &Master::setBorder);
    connect(ui->btSalvarConsole, &QPushButton::clicked, this, &Master::saveConsole);

    // Finding in the console, as in any terminal window.
    auto *find = new QShortcut(QKeySequence::Find, this, this, &Master::showFindBar);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    auto *next = new QShortcut(QKeySequence::FindNext, this, this, [this] { findInConsole(false); });
    next->setContext(Qt::WidgetWithChildrenShortcut);
    auto *previous = new QShortcut(QKeySequence::FindPrevious, this, this, [this] { findInConsole(true); });
    previous->setContext(Qt::WidgetWithChildrenShortcut);
    connect(ui->btProximo, &QToolButton::clicked, this, [this] { findInConsole(false); });
    connect(ui->btAnterior, &QToolButton::clicked, this, [this] { findInConsole(true); });
    connect(ui->txtLocalizar, &QLineEdit::textEdited, this, [this] {
        // Typing searches from where the console's cursor stands, so the match grows in place.
        QTextCursor at = ui->txtConsole->textCursor();
        at.setPosition(at.selectionStart());
        ui->txtConsole->setTextCursor(at);
        findInConsole(false);
    });
    ui->txtLocalizar->installEventFilter(this);

    // Up and Down in the command field walk the commands sent, not the stored command list.
    ui->txtComandos->installEventFilter(this);
    ui->txtComandos->lineEdit()->installEventFilter(this);

    // A connection validated while the screen is open lets it send (unless it waits); the flag
    // alone is "1" after the empty first answer of a port where no phone answers.
    const auto followConnection = [this] {
        if (!m_waiting)
            ui->btSend->setEnabled(session().validatedAndIdle());
    };
    connect(&session(), &Session::connectionFlagChanged, this, followConnection);
    connect(&session(), &Session::connectionValidatedChanged, this, followConnection);
    connect(&session(), &Session::modeloChanged, this, [this] {
        updateDeviceLabel();
        BuscaDadosGravados(ui->txtComandos->currentText());
    });
    connect(&session(), &Session::idiomaChanged, this, &Master::retranslate);

    {
        const QSignalBlocker block(ui->txtComandos);
        fillCommandList();
        ui->txtComandos->setCurrentIndex(-1);
        ui->txtComandos->setEditText(QString());
    }
    ui->HScroll1->setValue(ui->HScroll1->maximum());
    setBorder(ui->HScroll1->value());
    retranslate();
}

Master::~Master() = default;

fmHelp *Master::helpWindow() const
{
    return m_help;
}

zAjustes *Master::adjustmentsWindow() const
{
    return m_adjustments;
}

void Master::retranslate()
{
    setWindowTitle(Traduz(QStringLiteral("Modo Comandos e Comparador")) + QStringLiteral(" - Pelorin Vekto"));
    ui->btSend->setText(Traduz(QStringLiteral("Executar")));
    ui->btSend->setToolTip(Traduz(QStringLiteral("Executar Comando")));
    ui->btNovo->setText(Traduz(QStringLiteral("Adicionar Comando")));
    ui->btApagar->setText(Traduz(QStringLiteral("Excluir Comando")));
    ui->btSalvar->setText(Traduz(QStringLiteral("Copiar Dados")));
    ui->btSalvar->setToolTip(Traduz(QStringLiteral("Copiar Dados do Console para o Comparador")));
    ui->btExcluir->setText(Traduz(QStringLiteral("Excluir")));
    ui->btExcluir->setToolTip(Traduz(QStringLiteral("Apagar Dados Gravados")));
    ui->btSalvarAtualizacoes->setText(Traduz(QStringLiteral("Salvar")));
    ui->btSalvarAtualizacoes->setToolTip(Traduz(QStringLiteral("Salvar Alterações")));
    ui->btReiniciar->setText(Traduz(QStringLiteral("Reiniciar Dispositivo")));
    ui->btReiniciar->setToolTip(Traduz(QStringLiteral("Sair do Modo Purple")));
    ui->btLimpar->setText(Traduz(QStringLiteral("Limpar")));
    ui->btSalvarConsole->setText(Traduz(QStringLiteral("Salvar console")));
    ui->txtLocalizar->setPlaceholderText(Traduz(QStringLiteral("Localizar no console (Ctrl+F)")));
    ui->btAnterior->setToolTip(Traduz(QStringLiteral("Anterior")));
    ui->btProximo->setToolTip(Traduz(QStringLiteral("Próximo")));
    ui->ckLimpar->setText(Traduz(QStringLiteral("Auto")));
    ui->ckLimpar->setToolTip(Traduz(QStringLiteral("Limpar dados após comando")));
    ui->btHelp->setText(Traduz(QStringLiteral("Help")));
    ui->btHelpPdf->setText(Traduz(QStringLiteral("Help PDF")));
    ui->ldDispConect->setText(Traduz(QStringLiteral("Leitura do dispositivo conectado:")));
    ui->ldDispComparador->setText(Traduz(QStringLiteral("Comparador: (Dispositivos Gravados)")));
    ui->lbComandos->setText(Traduz(QStringLiteral("Comandos:")));
    ui->lbInfDados->setText(Traduz(QStringLiteral("Informações sobre os dados:")));
    ui->lbVar->setText(Traduz(QStringLiteral("* Tensões de malhas VAR apresentam variações de valores")));
    ui->lbAutoComparadorX->setText(Traduz(QStringLiteral("Auto Comparador")));
    ui->lbAutoComparadorOk->setText(Traduz(QStringLiteral("Auto Comparador OK")));
    ui->Command1->setText(Traduz(QStringLiteral("Tira Marca")));
    ui->Command2->setText(Traduz(QStringLiteral("Add Marca")));
    ui->Command3->setText(Traduz(QStringLiteral("Ajustes")));
    ui->txtComandos->setToolTip(Traduz(QStringLiteral("Digite ou seleciona na lista suspença o comando desejado")));
    showLanguageBoxes();
    updateDeviceLabel();
}

void Master::showLanguageBoxes()
{
    const quint8 idioma = session().idioma();
    ui->txtInfoComandos->setVisible(idioma == 1);
    ui->txtInfoDados->setVisible(idioma == 1);
    ui->txtInfoComandos2->setVisible(idioma == 2);
    ui->txtInfoDados2->setVisible(idioma == 2);
    ui->txtInfoComandos3->setVisible(idioma == 3);
    ui->txtInfoDados3->setVisible(idioma == 3);
}

void Master::updateDeviceLabel()
{
    ui->lbDispositivo->setText(QStringLiteral("  ") + Traduz(QStringLiteral("Modelo")) + QStringLiteral(": ")
                               + session().modelo());
}

void Master::fillCommandList()
{
    const QString current = ui->txtComandos->currentText();
    const QSignalBlocker block(ui->txtComandos);
    ui->txtComandos->clear();
    for (const ComandoRecord &c : m_db->comandos())
        ui->txtComandos->addItem(c.comando);
    ui->txtComandos->setEditText(current);
}

void Master::BuscaDadosGravados(const QString &command)
{
    m_data1->requery(m_db->dadosQuery(session().modelo(), command));
    m_data2->requery(m_db->comandoQuery(command));
}

void Master::sendForThisScreen(const QString &command)
{
    m_waiting = true;
    ui->btSend->setEnabled(false);
    enviaComando(QString::fromLatin1(ScreenId), command);
}

void Master::send()
{
    const QString command = ui->txtComandos->currentText();
    if (session().validatedAndIdle() && !command.isEmpty()) {
        if (::AutoComparador::isLongAnswerCommand(command))
            session().setLongAnswer(true);
        sendForThisScreen(command);
        session().commandHistory().add(command);

        if (::AutoComparador::isButtonTestCommand(command)) {
            // The result shows on the phone; the test runs until it is told to stop.
            dialogs().information(this, Traduz(QStringLiteral("Teste de Funcionamento de Botões")),
                                  Traduz(QStringLiteral("Resultado do teste estão sendo exibidos na tela do dispositio"))
                                      + QStringLiteral("\r\n") + Traduz(QStringLiteral("Clique em OK para finalizar")));
            sendForThisScreen(QStringLiteral("/q"));
        }
    }

    // Whether or not anything went out: a mark from an earlier answer must not stay up.
    BuscaDadosGravados(command);
    ui->lbAutoComparador->setVisible(false);
}

void Master::handOver(const QString &answer)
{
    if (ui->ckLimpar->isChecked())
        ui->txtConsole->setRawText(answer);
    else
        ui->txtConsole->appendRaw(QStringLiteral("\r\n") + answer);
    m_waiting = false;
    ui->btSend->setEnabled(true);
    AutoComparador();
}

void Master::AutoComparador()
{
    // A long answer is not judged: the mark keeps its state and nothing is masked.
    if (session().longAnswer())
        return;
    const Masker &masker = m_masks.masker();
    const QString &masked = m_maskedConsole.update(masker, m_masks.revision(), ui->txtConsole->rawText(),
                                                   ui->txtConsole->revision());
    const auto mark = ::AutoComparador::evaluateMasked(masked, ui->txtComparador->rawText());
    ui->lbAutoComparador->setVisible(mark == ::AutoComparador::Mark::Shown);
}

bool Master::writeSucceeded(bool ok)
{
    if (!ok)
        dialogs().critical(this, Traduz(QStringLiteral("DB_TITULO")), Traduz(QStringLiteral("DB_ERRO_GRAVACAO")));
    return ok;
}

void Master::recordAnswer()
{
    const QString console = ui->txtConsole->rawText();
    if (console.isEmpty() || !ui->btSend->isEnabled())
        return;
    const QString command = ui->txtComandos->currentText();
    if (m_data1->hasRecord()) {
        if (!dialogs().question(this, Traduz(QStringLiteral("Dados")),
                                Traduz(QStringLiteral("Deseja substituir os dados gravados do lado comparador?"))))
            return;
        DadosRecord record{m_data1->value(QStringLiteral("Aparelho")).toString(),
                           m_data1->value(QStringLiteral("Comando")).toString(),
                           console,
                           m_data1->value(QStringLiteral("Info")).toString(),
                           m_data1->value(QStringLiteral("Info2")).toString(),
                           m_data1->value(QStringLiteral("Info3")).toString()};
        writeSucceeded(m_db->updateDados(record));
    } else {
        writeSucceeded(m_db->addDados(DadosRecord{session().modelo(), command, console, {}, {}, {}}));
    }
    BuscaDadosGravados(command);
}

void Master::deleteRecordedAnswer()
{
    if (!ui->btSend->isEnabled() || ui->txtComparador->rawText().isEmpty() || !m_data1->hasRecord())
        return;
    if (!dialogs().question(this, Traduz(QStringLiteral("Excluir")),
                            Traduz(QStringLiteral("Deseja excluir os dados gravados?"))))
        return;
    writeSucceeded(m_db->deleteDados(m_data1->value(QStringLiteral("Aparelho")).toString(),
                                     m_data1->value(QStringLiteral("Comando")).toString()));
    BuscaDadosGravados(ui->txtComandos->currentText());
}

void Master::saveEdits()
{
    if (!ui->btSend->isEnabled())
        return;
    if (!dialogs().question(this, Traduz(QStringLiteral("Salvar")), Traduz(QStringLiteral("Deseja salvar as alterações?"))))
        return;
    bool ok = true;
    if (m_data1->hasRecord())
        ok = m_db->updateDados(DadosRecord{m_data1->value(QStringLiteral("Aparelho")).toString(),
                                           m_data1->value(QStringLiteral("Comando")).toString(),
                                           ui->txtComparador->rawText(), ui->txtInfoDados->rawText(),
                                           ui->txtInfoDados2->rawText(), ui->txtInfoDados3->rawText()});
    if (ok && m_data2->hasRecord())
        ok = m_db->updateComandoInfo(ComandoRecord{m_data2->value(QStringLiteral("Comando")).toString(),
                                                   ui->txtInfoComandos->rawText(), ui->txtInfoComandos2->rawText(),
                                                   ui->txtInfoComandos3->rawText()});
    // On failure the edits stay in the boxes so they are not lost; the file keeps its record.
    if (writeSucceeded(ok))
        BuscaDadosGravados(ui->txtComandos->currentText());
}

void Master::addCommand()
{
    const auto answer = dialogs().input(this, Traduz(QStringLiteral("Novo Comando")),
                                        Traduz(QStringLiteral("Digite o comando a ser gravado:")),
                                        ui->txtComandos->currentText());
    // A quote would break every query of the older tools that share this file: refused.
    if (!answer || answer->isEmpty() || answer->contains(u'\''))
        return;
    if (!m_db->comandoExists(*answer) && !writeSucceeded(m_db->addComando(*answer)))
        return;
    fillCommandList();
    ui->txtComandos->setEditText(*answer);
}

void Master::deleteCommand()
{
    const QString command = ui->txtComandos->currentText();
    if (command.isEmpty())
        return;
    if (!dialogs().question(this, Traduz(QStringLiteral("Excluir Comando")),
                            Traduz(QStringLiteral("Deseja excluir o comando ")) + QStringLiteral("  ") + command
                                + QStringLiteral("?")))
        return;
    writeSucceeded(m_db->deleteComando(command));
    fillCommandList();
    m_data2->requery(m_db->comandoQuery(command));
}

void Master::restartDevice()
{
    const QString title = Traduz(QStringLiteral("Reiniciar Dispositivo"));
    if (!dialogs().question(this, title, title))
        return;
    if (session().connectedAndIdle())
        sendForThisScreen(QStringLiteral("Reset"));
}

void Master::clearConsole()
{
    ui->txtConsole->setRawText(QString());
    ui->txtComandos->setFocus();
}

void Master::showHelp()
{
    ui->txtComandos->setEditText(QStringLiteral("Help"));
    if (!m_help) {
        m_help = new fmHelp;
        m_help->setWindowTitle(Traduz(QStringLiteral("Help")));
        showWindow(m_help);
    }
    m_help->txtConsole()->setRawText(ui->txtComparador->rawText());
}

QString Master::helpPdfName(quint8 idioma)
{
    switch (idioma) {
    case 2:
        return QStringLiteral("xEDK_USA.pdf");
    case 3:
        return QStringLiteral("xEDK_ES.pdf");
    default:
        return QStringLiteral("xEDK_BR.pdf");
    }
}

void Master::openHelpPdf()
{
    ProgramPdf::open(this, session(), dialogs(), m_shell, helpPdfName(session().idioma()));
}

void Master::maskRecordedAnswer()
{
    ui->txtComparador->setRawText(m_masks.masker().mask(ui->txtComparador->rawText()));
    saveEdits();
}

void Master::addMaskText()
{
    const auto answer = dialogs().input(this, Traduz(QStringLiteral("m")), Traduz(QStringLiteral("Digite a m.")));
    if (answer && !answer->isEmpty())
        writeSucceeded(m_db->addMaskText(*answer));
}

void Master::openAdjustments()
{
    if (m_adjustments) {
        m_adjustments->activateWindow();
        return;
    }
    m_adjustments = new zAjustes(ScreenContext{session(), exchange(), dialogs()});
    showWindow(m_adjustments);
}

void Master::showWindow(QWidget *window)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (m_showWindow)
        m_showWindow(window);
    else
        window->show();
}

void Master::setBorder(int value)
{
    // The two answer boxes share their row; the scroll bar's value is the console's share in
    // per cent, the rest is the comparator's.
    ui->boxesRow->setStretch(0, value);
    ui->boxesRow->setStretch(1, 100 - value);
}

void Master::saveConsole()
{
    const QString text = ui->txtConsole->rawText();
    if (text.isEmpty())
        return;
    const QString title = Traduz(QStringLiteral("Salvar console"));
    const auto path = dialogs().saveFileName(
        this, title, QDir(QFileInfo(session().configPath()).absolutePath())
                         .filePath(ConsoleFile::suggestedName(session().modelo(), QDateTime::currentDateTime())));
    if (!path)
        return;
    const QString error = ConsoleFile::save(*path, text);
    if (!error.isEmpty())
        dialogs().critical(this, title,
                           Traduz(QStringLiteral("Não foi possível gravar o arquivo")) + QStringLiteral(":\n") + *path
                               + QStringLiteral("\n") + error);
}

void Master::showFindBar()
{
    ui->FrameLocalizar->setVisible(true);
    ui->txtLocalizar->setFocus(Qt::ShortcutFocusReason);
    ui->txtLocalizar->selectAll();
}

bool Master::findInConsole(bool backward)
{
    const QString text = ui->txtLocalizar->text();
    if (text.isEmpty())
        return false;
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool found = ui->txtConsole->find(text, flags);
    if (!found) {
        // Past the last match: go round from the other end once.
        QTextCursor from = ui->txtConsole->textCursor();
        from.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
        ui->txtConsole->setTextCursor(from);
        found = ui->txtConsole->find(text, flags);
    }
    ui->txtLocalizar->setStyleSheet(found ? QString() : QStringLiteral("QLineEdit { background: #ffd0d0; }"));
    return found;
}

bool Master::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return TestScreen::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool plain = !(key->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
    if (watched == ui->txtLocalizar) {
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            findInConsole(key->modifiers().testFlag(Qt::ShiftModifier));
            return true;
        }
        if (key->key() == Qt::Key_Escape) {
            ui->FrameLocalizar->setVisible(false);
            ui->txtConsole->setFocus();
            return true;
        }
    } else if ((watched == ui->txtComandos || watched == ui->txtComandos->lineEdit()) && plain
               && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
        CommandHistory &history = session().commandHistory();
        const QString typed = ui->txtComandos->currentText();
        ui->txtComandos->setEditText(key->key() == Qt::Key_Up ? history.older(typed) : history.newer(typed));
        return true;
    }
    return TestScreen::eventFilter(watched, event);
}
