#include "ConsoleFile.h"

#include <QDateTime>
#include <QSaveFile>

namespace ConsoleFile {

QString save(const QString &path, const QString &text)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const QByteArray bytes = text.toUtf8();
    if (file.write(bytes) != bytes.size() || !file.commit())
        return file.errorString();
    return {};
}

QString suggestedName(const QString &modelo, const QDateTime &when)
{
    QString model = modelo;
    model.replace(u' ', u'_');
    return QStringLiteral("console-%1-%2.txt").arg(model.isEmpty() ? QStringLiteral("modelo") : model,
                                                  when.toString(QStringLiteral("yyyyMMdd-HHmmss")));
}

} // namespace ConsoleFile
