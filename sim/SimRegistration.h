#pragma once

#include <QString>

// The desktop program lists running simulators beside the real serial ports by reading one
// small file per simulator from a shared temporary folder; this writes and removes that file.

class SimRegistration {
public:
    SimRegistration(const QString &portPath, const QString &description);
    ~SimRegistration();
    SimRegistration(const SimRegistration &) = delete;
    SimRegistration &operator=(const SimRegistration &) = delete;

    QString filePath() const { return m_path; }
    bool ok() const { return m_ok; }

    static QString folder();

private:
    QString m_path;
    bool m_ok = false;
};
