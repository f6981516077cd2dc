#include "Startup.h"

#include "Database.h"
#include "Dialogs.h"
#include "Session.h"
#include "Texts.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QSplashScreen>

namespace Startup {

QString configPath(const QString &programDir)
{
    return QDir(programDir).filePath(QStringLiteral("Config.vkt"));
}

namespace {

QString problemKey(DatabaseProblem problem)
{
    switch (problem) {
    case DatabaseProblem::ReadOnly: return QStringLiteral("DB_SOMENTE_LEITURA");
    case DatabaseProblem::Locked: return QStringLiteral("DB_BLOQUEADO");
    case DatabaseProblem::Corrupt: return QStringLiteral("DB_CORROMPIDO");
    case DatabaseProblem::NoSchema: return QStringLiteral("DB_SEM_TABELAS");
    default: return {};
    }
}

} // namespace

std::optional<int> checkConfig(const QString &path, Dialogs &dialogs)
{
    QString detail;
    const DatabaseProblem problem = Database::check(path, &detail);
    if (problem == DatabaseProblem::None) {
        // A file from before the key columns ignored letter case gets them now. Should that
        // fail, the file is left as it was and still works, matching letter case exactly.
        if (!Database::upgradeCollation(path, &detail))
            qWarning("Config.vkt keeps its letter-case rules: %s", qPrintable(detail));
        return std::nullopt;
    }
    if (problem == DatabaseProblem::Missing) {
        dialogs.critical(nullptr, QStringLiteral("Arquivo ausente - File not found"),
                         QStringLiteral("BR - Arquivo: 'Config.vkt' ausente, reinstale o software\r\n"
                                        "US - Config.vkt' missing, reinstall software\r\n"
                                        "ES - Archivo: falta 'Config.vkt', reinstale el software"));
        return 1;
    }
    const QString key = problemKey(problem);
    const QString text = QStringLiteral("BR - %1\r\nUS - %2\r\nES - %3\r\n\r\n%4%5")
                             .arg(Texts::Traduz(key, 1), Texts::Traduz(key, 2), Texts::Traduz(key, 3),
                                  QDir::toNativeSeparators(path),
                                  detail.isEmpty() ? QString() : QStringLiteral("\r\n") + detail);
    const QString title = QStringLiteral("%1 - %2 - %3").arg(Texts::Traduz(QStringLiteral("DB_TITULO"), 1),
                                                              Texts::Traduz(QStringLiteral("DB_TITULO"), 2),
                                                              Texts::Traduz(QStringLiteral("DB_TITULO"), 3));
    dialogs.critical(nullptr, title, text);
    return 2;
}

void initSession(Session &session)
{
    session.setVersoes(QString::fromLatin1(Versao));
    // Cleared here for every caller; the program's own start ends before it matters when the
    // update check stops it.
    session.setStartFlag(false);
    session.setScreenId(QStringLiteral("0"));
    session.setDefaultReadoutKey(QStringLiteral("ACORNPMUREADALL"));
    session.setSessionStart(QDateTime::currentDateTime());
    Database db(session.configPath());
    if (const auto idioma = db.idioma(); idioma && *idioma >= 1 && *idioma <= 3)
        session.setIdioma(*idioma);
}

QSplashScreen *showPicture()
{
    QPixmap picture(480, 240);
    picture.fill(QColor(24, 40, 64));
    QPainter painter(&picture);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPointSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(picture.rect().adjusted(0, 0, 0, -40), Qt::AlignCenter, QStringLiteral("Pelorin Vekto"));
    font.setPointSize(12);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(picture.rect().adjusted(0, 80, 0, 0), Qt::AlignCenter, QString::fromLatin1(Versao));
    painter.end();
    auto *splash = new QSplashScreen(picture);
    splash->show();
    QApplication::processEvents();
    return splash;
}

} // namespace Startup
