#include "ProgramPdf.h"

#include "Dialogs.h"
#include "Session.h"
#include "Shell.h"

#include <QDir>
#include <QFileInfo>

namespace ProgramPdf {

QString path(const Session &session, const QString &fileName)
{
    return QFileInfo(session.configPath()).absoluteDir().filePath(fileName);
}

bool open(QWidget *parent, const Session &session, Dialogs &dialogs, Shell &shell, const QString &fileName)
{
    const QString file = path(session, fileName);
    const QString shown = QDir::toNativeSeparators(file);
    if (!QFileInfo(file).isFile()) {
        dialogs.critical(parent, session.Traduz(QStringLiteral("PDF_AUSENTE_TITULO")),
                         session.Traduz(QStringLiteral("PDF_AUSENTE")) + shown);
        return false;
    }
    if (!shell.open(file)) {
        dialogs.critical(parent, session.Traduz(QStringLiteral("PDF_AUSENTE_TITULO")),
                         session.Traduz(QStringLiteral("Nenhum programa para abrir o arquivo: ")) + shown);
        return false;
    }
    return true;
}

} // namespace ProgramPdf
