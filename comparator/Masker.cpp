#include "Masker.h"

#include <algorithm>
#include <map>
#include <span>

Masker::Masker(const QStringList &masks) : m_automaton(masks, Qt::CaseInsensitive)
{
    m_length.resize(masks.size());
    for (qsizetype p = 0; p < masks.size(); ++p) {
        const qint32 node = m_automaton.patternNode(p);
        // A repeat of an earlier mask (in any letter case) shares its node and never applies again.
        if (node >= 0 && m_automaton.nodePattern(node) == p)
            m_length[p] = m_automaton.nodeDepth(node);
    }
}

QString Masker::mask(QStringView text) const
{
    if (masksNothing() || text.isEmpty())
        return text.toString();
    const std::vector<qint32> states = m_automaton.walk(m_automaton.prepare(text));
    const std::vector<qsizetype> counts = m_automaton.matchCounts(states);
    const qsizetype maskCount = m_length.size();
    qsizetype total = 0;
    for (qsizetype p = 0; p < maskCount; ++p)
        if (m_length[p] > 0)
            total += counts[m_automaton.patternNode(p)];
    if (total == 0)
        return text.toString();

    // Where each mask ends, ascending: all masks in one sweep when that fits the budget, else
    // one mask at a time below (masks nested in each other over a long run of one character
    // can occur at every position each).
    const qsizetype n = text.size();
    const bool allAtOnce = total <= m_budgetPerCharacter * n;
    std::vector<qsizetype> offsets;
    std::vector<qsizetype> ends;
    if (allAtOnce) {
        offsets.assign(maskCount + 1, 0);
        for (qsizetype p = 0; p < maskCount; ++p)
            offsets[p + 1] = offsets[p] + (m_length[p] > 0 ? counts[m_automaton.patternNode(p)] : 0);
        ends.resize(total);
        std::vector<qsizetype> fill(offsets.begin(), offsets.end() - 1);
        for (qsizetype i = 0; i < n; ++i)
            for (qint32 v = m_automaton.firstMatch(states[i]); v >= 0; v = m_automaton.nextMatch(v))
                ends[fill[m_automaton.nodePattern(v)]++] = i;
    }

    // Mask by mask in order, as replacing one after the other would: an occurrence is replaced
    // unless it overlaps one already replaced, or the previous one of the same mask.
    std::map<qsizetype, qsizetype> taken; // start -> end of every replaced occurrence
    std::vector<qsizetype> single;
    for (qsizetype p = 0; p < maskCount; ++p) {
        const qsizetype length = m_length[p];
        const qint32 node = m_automaton.patternNode(p);
        if (length == 0 || counts[node] == 0)
            continue;
        std::span<const qsizetype> maskEnds;
        if (allAtOnce) {
            maskEnds = std::span<const qsizetype>(ends.data() + offsets[p], ends.data() + offsets[p + 1]);
        } else {
            single.clear();
            for (qsizetype i = 0; i < n; ++i)
                if (m_automaton.endsIn(node, states[i]))
                    single.push_back(i);
            maskEnds = single;
        }
        qsizetype from = 0; // no further occurrence of this mask may start before this
        auto it = maskEnds.begin();
        for (;;) {
            it = std::lower_bound(it, maskEnds.end(), from + length - 1);
            if (it == maskEnds.end())
                break;
            const qsizetype start = *it - length + 1;
            const qsizetype end = *it + 1;
            // An overlapping replaced occurrence blocks this one and every later one of this
            // mask that starts before its end.
            qsizetype blockedUntil = -1;
            const auto next = taken.upper_bound(start);
            if (next != taken.begin() && std::prev(next)->second > start)
                blockedUntil = std::prev(next)->second;
            else if (next != taken.end() && next->first < end)
                blockedUntil = next->second;
            if (blockedUntil >= 0) {
                from = blockedUntil;
                continue;
            }
            taken.emplace(start, end);
            from = end;
        }
    }

    QString out;
    out.reserve(n + qsizetype(taken.size()) * placeholder().size());
    qsizetype at = 0;
    for (const auto &[start, end] : taken) {
        out += text.sliced(at, start - at);
        out += placeholder();
        at = end;
    }
    out += text.sliced(at);
    return out;
}

bool Masker::spansBorder(QStringView before, QStringView after) const
{
    const qsizetype reach = m_automaton.longestPattern() - 1;
    if (masksNothing() || reach <= 0 || before.isEmpty() || after.isEmpty())
        return false;
    const QStringView tail = before.last(std::min(reach, before.size()));
    const QStringView head = after.first(std::min(reach, after.size()));
    const std::vector<qint32> states = m_automaton.walk(m_automaton.prepare(tail.toString().append(head)));
    // The longest mask ending at a place starts earliest; if it starts behind the border, a
    // mask spans it.
    for (qsizetype i = tail.size(); i < qsizetype(states.size()); ++i) {
        const qint32 v = m_automaton.firstMatch(states[i]);
        if (v >= 0 && i - m_automaton.nodeDepth(v) + 1 < tail.size())
            return true;
    }
    return false;
}

const QString &GrowingMaskedText::update(const Masker &masker, quint64 maskerRevision, QStringView text,
                                         quint64 revision)
{
    const bool grewOnly = m_consumed >= 0 && revision == m_revision && maskerRevision == m_maskerRevision
                          && text.size() >= m_consumed;
    if (!grewOnly) {
        m_masked = masker.mask(text);
    } else if (text.size() > m_consumed) {
        const QStringView before = text.first(m_consumed);
        const QStringView after = text.sliced(m_consumed);
        if (masker.spansBorder(before, after))
            m_masked = masker.mask(text);
        else
            m_masked += masker.mask(after);
    }
    m_consumed = text.size();
    m_revision = revision;
    m_maskerRevision = maskerRevision;
    return m_masked;
}
