#include "StartupSteps.h"

#include "AccessMigration.h"
#include "Database.h"
#include "Dialogs.h"
#include "Session.h"
#include "Shell.h"
#include "Texts.h"
#include "UpdateCheck.h"
#include "UserImport.h"

#include <QDir>
#include <QFileInfo>

namespace StartupSteps {

namespace {

// Start-up boxes before a language is known speak all three languages at once.
QString allLanguages(const QString &key)
{
    return QStringLiteral("BR - %1\r\nUS - %2\r\nES - %3")
        .arg(Texts::Traduz(key, 1), Texts::Traduz(key, 2), Texts::Traduz(key, 3));
}

QString allLanguagesTitle(const QString &key)
{
    return QStringLiteral("%1 - %2 - %3").arg(Texts::Traduz(key, 1), Texts::Traduz(key, 2), Texts::Traduz(key, 3));
}

void openDownloadPage(Session &session, Shell &shell)
{
    const auto page = Database(session.configPath()).toolsText(QStringLiteral("UrlDownload"));
    if (page && UpdateCheck::isSafeDownloadPage(*page))
        shell.open(page->trimmed());
    else
        qWarning("No https download page is set in Tools.UrlDownload; none was opened");
}

} // namespace

QString userFilePath(const QString &configPath)
{
    return QFileInfo(configPath).absoluteDir().filePath(QStringLiteral("User.vkt"));
}

std::optional<int> migrateConfig(const QString &configPath, Dialogs &dialogs)
{
    const AccessMigration::Result result = AccessMigration::migrate(configPath);
    if (result.migrated) {
        dialogs.information(nullptr, allLanguagesTitle(QStringLiteral("MIGRACAO_TITULO")),
                            allLanguages(QStringLiteral("MIGRACAO_OK")) + QStringLiteral("\r\n\r\n")
                                + QDir::toNativeSeparators(result.keptAs));
        return std::nullopt;
    }
    if (result.error.isEmpty())
        return std::nullopt;
    dialogs.critical(nullptr, allLanguagesTitle(QStringLiteral("MIGRACAO_TITULO")),
                     allLanguages(QStringLiteral("MIGRACAO_FALHOU")) + QStringLiteral("\r\n\r\n")
                         + QDir::toNativeSeparators(configPath) + QStringLiteral("\r\n") + result.error);
    return 2;
}

bool upgradeConfig(const QString &configPath, QString *error)
{
    Database db(configPath);
    // Tables added after the first release (the reference origins) arrive empty.
    const bool ok = db.addMissingToolsColumns() && db.addMissingTables();
    if (!ok && error)
        *error = db.lastError();
    return ok;
}

bool verificaVersao(Session &session, Http &http, Dialogs &dialogs, Shell &shell,
                    const std::function<void()> &beforeBox)
{
    const auto endpoint = Database(session.configPath()).toolsText(QStringLiteral("UrlVersao"));
    const UpdateCheck::Outcome outcome = UpdateCheck::check(http, endpoint.value_or(QString()), session.versao());
    switch (outcome.kind) {
    case UpdateCheck::Kind::Current:
        return true;
    case UpdateCheck::Kind::NoAnswer:
        // An unreachable or misbehaving server must not keep the technician from working.
        if (endpoint && !endpoint->trimmed().isEmpty())
            qWarning("Update check skipped: %s", qPrintable(outcome.detail));
        return true;
    case UpdateCheck::Kind::Mandatory:
        if (beforeBox)
            beforeBox();
        dialogs.information(nullptr, session.Traduz(QStringLiteral("MSG_UPDATE_OBRIGATORIA_TITULO")),
                            session.Traduz(QStringLiteral("MSG_UPDATE_OBRIGATORIA")) + QStringLiteral("\r\n\r\n")
                                + outcome.message);
        openDownloadPage(session, shell);
        return false;
    case UpdateCheck::Kind::Optional:
        if (beforeBox)
            beforeBox();
        if (!dialogs.question(nullptr, session.Traduz(QStringLiteral("Atualização")),
                              session.Traduz(QStringLiteral("Atualização disponível"))))
            return true;
        openDownloadPage(session, shell);
        return false;
    }
    return true;
}

bool termos(Session &session, Dialogs &dialogs, const std::function<bool()> &ask)
{
    Database db(session.configPath());
    if (db.toolsText(QStringLiteral("Termos")).value_or(QString()) == QLatin1String("1"))
        return true;
    if (!ask())
        return false;
    if (!db.setToolsText(QStringLiteral("Termos"), QStringLiteral("1")))
        dialogs.critical(nullptr, session.Traduz(QStringLiteral("TERMOS_TITULO")),
                         session.Traduz(QStringLiteral("DB_ERRO_GRAVACAO")) + QStringLiteral("\r\n") + db.lastError());
    return true;
}

SyncDecision decideSync(const QString &syncbd, bool userFilePresent)
{
    if (!userFilePresent)
        return {false, QStringLiteral("2")};
    if (syncbd == QLatin1String("2"))
        return {false, syncbd};
    // "0", "1", and any value an older file may hold: the question is asked.
    return {true, syncbd};
}

QString stateAfterAnswer(const QString &syncbd, bool yes, bool imported)
{
    if (yes)
        return imported ? QStringLiteral("2") : syncbd; // a failed import is offered again next start
    return syncbd == QLatin1String("1") ? QStringLiteral("2") : QStringLiteral("1");
}

void perguntaImportacao(Session &session, Dialogs &dialogs, QWidget *parent)
{
    const QString userPath = userFilePath(session.configPath());
    QString state;
    {
        Database db(session.configPath());
        state = db.syncbd().value_or(QStringLiteral("0"));
    }
    const SyncDecision decision = decideSync(state, QFileInfo(userPath).isFile());
    if (!decision.ask) {
        if (decision.stateIfNotAsked != state)
            Database(session.configPath()).setSyncbd(decision.stateIfNotAsked);
        return;
    }
    const bool yes = dialogs.question(parent, session.Traduz(QStringLiteral("Sincronização")),
                                      session.Traduz(QStringLiteral("Dados UPDATE1")) + QStringLiteral("\r\n")
                                          + session.Traduz(QStringLiteral("Dados UPDATE2")));
    const bool imported = yes && importa(session, dialogs, parent, userPath);
    const QString next = stateAfterAnswer(state, yes, imported);
    if (next != state) {
        Database db(session.configPath());
        if (!db.setSyncbd(next))
            qWarning("Could not store the import state: %s", qPrintable(db.lastError()));
    }
}

bool importa(Session &session, Dialogs &dialogs, QWidget *parent, const QString &userPath)
{
    const UserImport::Report report = UserImport::run(userPath, session.configPath());
    if (!report.ok()) {
        QString text = session.Traduz(report.messageKey());
        if (!report.detail.isEmpty())
            text += QStringLiteral("\r\n\r\n") + report.detail;
        dialogs.critical(parent, session.Traduz(QStringLiteral("Sincronização")), text);
        return false;
    }
    Database(session.configPath()).setSyncbd(QStringLiteral("2"));
    dialogs.Mensagem(parent, QStringLiteral("MSG_DADOS_SYNC"), session.idioma());
    return true;
}

} // namespace StartupSteps
