#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

// Answers live in data files so that real console transcripts can replace the made-up ones
// without a rebuild. The store looks a command up layer by layer (profile, model, common) and,
// inside each layer, in the override folder given on the command line before the built-in copy.

class AnswerStore {
public:
    // overrideRoot may be empty; the built-in answers are always searched last.
    explicit AnswerStore(const QString &overrideRoot = {});

    // The answer body (lines ending in LF) for a command on a model folder, or nothing when no
    // layer knows the command. profileFolder names an extra layer searched first ("" for none).
    std::optional<QByteArray> lookup(const QString &modelFolder, const QString &profileFolder,
                                     const QString &command) const;

    // A data file beside the answers (rails.tsv, i2c.tsv), override first.
    QByteArray dataFile(const QString &name) const;

    // Commands are compared the way the console parses them: case and runs of blanks ignored.
    static QString normalise(const QString &command);

    static QString builtInRoot() { return QStringLiteral(":/answers"); }

private:
    struct Index {
        QString root;
        QString folder;
        QHash<QString, QString> files;  // normalised command (or "prefix *") -> file
    };
    const Index &index(const QString &root, const QString &folder) const;
    std::optional<QByteArray> lookupIn(const Index &idx, const QString &command) const;

    QStringList m_roots;
    mutable QHash<QString, Index> m_indexes;
};
