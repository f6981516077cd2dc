#pragma once
// Medians of repeated timings: one slow round on a shared machine does not move the figure.

#include <QElapsedTimer>
#include <QList>
#include <algorithm>

inline qint64 medianNs(QList<qint64> ns)
{
    std::sort(ns.begin(), ns.end());
    return ns.at(ns.size() / 2);
}

// The median time of `rounds` calls of fn, in nanoseconds.
template<typename Fn> qint64 medianRunNs(int rounds, Fn fn)
{
    QList<qint64> ns;
    for (int r = 0; r < rounds; ++r) {
        QElapsedTimer t;
        t.start();
        fn();
        ns << t.nsecsElapsed();
    }
    return medianNs(ns);
}
