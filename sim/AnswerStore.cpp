#include "AnswerStore.h"

#include <QFile>

AnswerStore::AnswerStore(const QString &overrideRoot)
{
    if (!overrideRoot.isEmpty())
        m_roots << overrideRoot;
    m_roots << builtInRoot();
}

QString AnswerStore::normalise(const QString &command)
{
    return command.simplified().toLower();
}

const AnswerStore::Index &AnswerStore::index(const QString &root, const QString &folder) const
{
    const QString key = root + QLatin1Char('|') + folder;
    auto it = m_indexes.find(key);
    if (it != m_indexes.end())
        return *it;
    Index idx{root, folder, {}};
    QFile file(root + QLatin1Char('/') + folder + QStringLiteral("/index.tsv"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &raw : lines) {
            const QString line = QString::fromUtf8(raw).trimmed();
            const qsizetype tab = line.indexOf(QLatin1Char('\t'));
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || tab < 0)
                continue;
            idx.files.insert(normalise(line.left(tab)), line.mid(tab + 1).trimmed());
        }
    }
    return *m_indexes.insert(key, idx);
}

std::optional<QByteArray> AnswerStore::lookupIn(const Index &idx, const QString &command) const
{
    QString file = idx.files.value(command);
    QString argument;
    if (file.isEmpty()) {
        // "bl -p *": the last word is a free argument that the answer may quote as %ARG%.
        const qsizetype blank = command.lastIndexOf(QLatin1Char(' '));
        if (blank < 0)
            return std::nullopt;
        file = idx.files.value(command.left(blank) + QStringLiteral(" *"));
        argument = command.mid(blank + 1);
        if (file.isEmpty())
            return std::nullopt;
    }
    QFile f(idx.root + QLatin1Char('/') + idx.folder + QLatin1Char('/') + file);
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray body = f.readAll();
    if (!argument.isEmpty())
        body.replace("%ARG%", argument.toUtf8());
    return body;
}

std::optional<QByteArray> AnswerStore::lookup(const QString &modelFolder, const QString &profileFolder,
                                              const QString &command) const
{
    const QString key = normalise(command);
    QStringList layers;
    if (!profileFolder.isEmpty())
        layers << QStringLiteral("profiles/") + profileFolder;
    layers << modelFolder << QStringLiteral("common");
    for (const QString &layer : layers)
        for (const QString &root : m_roots)
            if (auto body = lookupIn(index(root, layer), key))
                return body;
    return std::nullopt;
}

QByteArray AnswerStore::dataFile(const QString &name) const
{
    for (const QString &root : m_roots) {
        QFile f(root + QLatin1Char('/') + name);
        if (f.open(QIODevice::ReadOnly))
            return f.readAll();
    }
    return {};
}
