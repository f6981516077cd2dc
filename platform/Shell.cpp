#include "Shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

bool QtShell::open(const QString &pathOrUrl)
{
    const QUrl url = QFileInfo(pathOrUrl).isAbsolute() ? QUrl::fromLocalFile(pathOrUrl)
                                                       : QUrl::fromUserInput(pathOrUrl);
    return QDesktopServices::openUrl(url);
}
