#include "SimRegistration.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

QString SimRegistration::folder()
{
    return QDir::tempPath() + QStringLiteral("/vekto-sim");
}

SimRegistration::SimRegistration(const QString &portPath, const QString &description)
    : m_path(folder() + QLatin1Char('/') + QString::number(QCoreApplication::applicationPid()) +
             QStringLiteral(".port"))
{
    QDir().mkpath(folder());
    QSaveFile file(m_path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(portPath.toUtf8() + '\n' + description.toUtf8() + '\n');
        m_ok = file.commit();
    }
}

SimRegistration::~SimRegistration()
{
    QFile::remove(m_path);
}
