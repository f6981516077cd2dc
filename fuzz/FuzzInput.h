#pragma once
// The fuzz targets' shared reading of an input: a few leading control bytes steer the run, the
// rest is text split into fields at the record separator (0x1E), which the phone never sends in
// an answer. Seeds are then plain answers with a control byte in front, easy to write by hand.

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, size_t size)
        : m_bytes(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)))
    {
    }

    // The next control byte; 0 once the input is used up.
    uint8_t control()
    {
        if (m_pos >= m_bytes.size())
            return 0;
        return uint8_t(m_bytes.at(m_pos++));
    }

    // The bytes not taken as control bytes, cut at every record separator (deep copies).
    QByteArrayList fields() const
    {
        QByteArrayList out;
        for (const QByteArray &f : m_bytes.mid(m_pos).split('\x1e'))
            out.append(QByteArray(f.constData(), f.size()));
        return out;
    }

    // The same fields decoded as text the way the program decodes the console (UTF-8).
    QStringList texts() const
    {
        QStringList out;
        for (const QByteArray &f : fields())
            out.append(QString::fromUtf8(f));
        return out;
    }

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
};

// A broken invariant: libFuzzer keeps the input and reports it like a crash.
#define FUZZ_CHECK(condition)                                                                      \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            fprintf(stderr, "fuzz check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);   \
            abort();                                                                               \
        }                                                                                          \
    } while (false)
