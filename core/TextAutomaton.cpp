#include "TextAutomaton.h"

#include <algorithm>
#include <limits>

namespace {

// Simple case folding by code point, the comparison QString uses when it ignores letter case.
// A character whose folded form would need another number of UTF-16 units stays as it is, so
// every position in the folded text is the same position in the original.
QString foldText(QStringView text)
{
    QString out(text.size(), Qt::Uninitialized);
    char16_t *dst = reinterpret_cast<char16_t *>(out.data());
    const char16_t *src = text.utf16();
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t c = src[i];
        if (c < 0x80) {
            dst[i] = (c >= u'A' && c <= u'Z') ? char16_t(c + 32) : c;
        } else if (QChar::isHighSurrogate(c) && i + 1 < n && QChar::isLowSurrogate(src[i + 1])) {
            const char32_t folded = QChar::toCaseFolded(QChar::surrogateToUcs4(c, src[i + 1]));
            if (QChar::requiresSurrogates(folded)) {
                dst[i] = QChar::highSurrogate(folded);
                dst[i + 1] = QChar::lowSurrogate(folded);
            } else {
                dst[i] = c;
                dst[i + 1] = src[i + 1];
            }
            ++i;
        } else {
            const char32_t folded = QChar::toCaseFolded(char32_t(c));
            dst[i] = QChar::requiresSurrogates(folded) ? c : char16_t(folded);
        }
    }
    return out;
}

} // namespace

TextAutomaton::TextAutomaton(const QStringList &patterns, Qt::CaseSensitivity cs) : m_cs(cs)
{
    // The trie, with children kept in small unsorted lists while it grows.
    std::vector<std::vector<std::pair<char16_t, qint32>>> kids(1);
    m_patternNode.reserve(patterns.size());
    for (qsizetype p = 0; p < patterns.size(); ++p) {
        const QString text = prepare(patterns.at(p));
        if (text.isEmpty()) {
            m_patternNode.append(-1);
            continue;
        }
        qint32 node = 0;
        for (const QChar qc : text) {
            const char16_t c = qc.unicode();
            auto &list = kids[node];
            const auto it = std::find_if(list.begin(), list.end(), [c](const auto &k) { return k.first == c; });
            if (it != list.end()) {
                node = it->second;
                continue;
            }
            const qint32 next = qint32(m_nodes.size());
            Node created;
            created.depth = m_nodes[node].depth + 1;
            m_nodes.push_back(created);
            kids[node].emplace_back(c, next); // `list` may dangle after the push below
            kids.emplace_back();
            node = next;
        }
        if (m_nodes[node].pattern < 0)
            m_nodes[node].pattern = qint32(p);
        m_patternNode.append(node);
        m_longest = std::max<qsizetype>(m_longest, text.size());
    }

    // Children flattened and sorted, for a binary search per character.
    for (std::size_t n = 0; n < kids.size(); ++n) {
        auto &list = kids[n];
        std::sort(list.begin(), list.end());
        m_nodes[n].childBegin = qint32(m_childChar.size());
        m_nodes[n].childCount = qint32(list.size());
        for (const auto &[c, node] : list) {
            m_childChar.push_back(c);
            m_childNode.push_back(node);
        }
    }
    m_rootAscii.assign(128, 0);
    for (qint32 k = 0; k < m_nodes[0].childCount; ++k) {
        const char16_t c = m_childChar[m_nodes[0].childBegin + k];
        if (c < 128)
            m_rootAscii[c] = m_childNode[m_nodes[0].childBegin + k];
    }

    // Fail links breadth first: the longest proper suffix of a node that is also a node.
    m_bfs.reserve(m_nodes.size());
    m_bfs.push_back(0);
    for (std::size_t head = 0; head < m_bfs.size(); ++head) {
        const qint32 u = m_bfs[head];
        for (qint32 k = 0; k < m_nodes[u].childCount; ++k) {
            const char16_t c = m_childChar[m_nodes[u].childBegin + k];
            const qint32 v = m_childNode[m_nodes[u].childBegin + k];
            m_nodes[v].fail = u == 0 ? 0 : slowStep(m_nodes[u].fail, c);
            m_nodes[v].output = m_nodes[v].pattern >= 0 ? v : m_nodes[m_nodes[v].fail].output;
            m_bfs.push_back(v);
        }
    }

    buildTable();

    // Enter and leave numbers of a depth-first walk of the fail tree: a node's subtree holds
    // exactly the states in which its pattern has just been read.
    const std::size_t count = m_nodes.size();
    std::vector<qint32> firstChild(count, -1), sibling(count, -1);
    for (std::size_t i = count; i-- > 1;) {
        const qint32 v = m_bfs[i];
        sibling[v] = firstChild[m_nodes[v].fail];
        firstChild[m_nodes[v].fail] = v;
    }
    m_enter.assign(count, 0);
    m_leave.assign(count, 0);
    qint32 clock = 0;
    std::vector<qint32> stack{0};
    std::vector<char> entered(count, 0);
    while (!stack.empty()) {
        const qint32 v = stack.back();
        if (!entered[v]) {
            entered[v] = 1;
            m_enter[v] = clock++;
            for (qint32 c = firstChild[v]; c >= 0; c = sibling[c])
                stack.push_back(c);
        } else {
            stack.pop_back();
            m_leave[v] = clock;
        }
    }
}

void TextAutomaton::buildTable()
{
    // Kept to a few megabytes: beyond that (thousands of distinct characters in the patterns)
    // the trie is walked instead, slower but in memory of the patterns alone.
    constexpr std::size_t MaxEntries = std::size_t(1) << 21;
    m_asciiClass.assign(128, 0);
    std::vector<char16_t> wide;
    for (const char16_t c : m_childChar) {
        if (c < 128) {
            if (m_asciiClass[c] == 0)
                m_asciiClass[c] = ++m_asciiClasses;
        } else {
            wide.push_back(c);
        }
    }
    std::sort(wide.begin(), wide.end());
    wide.erase(std::unique(wide.begin(), wide.end()), wide.end());
    m_wideChars = std::move(wide);
    m_classes = m_asciiClasses + qint32(m_wideChars.size());
    if (m_classes == 0 || m_nodes.size() * std::size_t(m_classes) > MaxEntries)
        return;

    // Breadth first, so a state's fail target already has its row: a state moves as its fail
    // target does, except along its own children.
    std::vector<qint32> table(m_nodes.size() * std::size_t(m_classes), 0);
    for (const qint32 u : m_bfs) {
        qint32 *row = table.data() + std::size_t(u) * m_classes;
        if (u != 0)
            std::copy_n(table.data() + std::size_t(m_nodes[u].fail) * m_classes, m_classes, row);
        const Node &n = m_nodes[u];
        for (qint32 k = 0; k < n.childCount; ++k) {
            const char16_t c = m_childChar[n.childBegin + k];
            row[(c < 128 ? m_asciiClass[c] : wideClass(c)) - 1] = m_childNode[n.childBegin + k];
        }
    }
    m_table = std::move(table);
}

qint32 TextAutomaton::wideClass(char16_t c) const
{
    const auto it = std::lower_bound(m_wideChars.begin(), m_wideChars.end(), c);
    return (it != m_wideChars.end() && *it == c) ? m_asciiClasses + qint32(it - m_wideChars.begin()) + 1 : 0;
}

QString TextAutomaton::prepare(QStringView text) const
{
    return m_cs == Qt::CaseInsensitive ? foldText(text) : text.toString();
}

qint32 TextAutomaton::child(qint32 node, char16_t c) const
{
    const Node &n = m_nodes[node];
    const char16_t *begin = m_childChar.data() + n.childBegin;
    const char16_t *end = begin + n.childCount;
    const char16_t *it = std::lower_bound(begin, end, c);
    return (it != end && *it == c) ? m_childNode[n.childBegin + (it - begin)] : -1;
}

qint32 TextAutomaton::slowStep(qint32 state, char16_t c) const
{
    for (;;) {
        if (state == 0)
            return c < 128 ? m_rootAscii[c] : std::max(child(0, c), 0);
        const qint32 next = child(state, c);
        if (next >= 0)
            return next;
        state = m_nodes[state].fail;
    }
}

std::vector<qint32> TextAutomaton::walk(QStringView prepared) const
{
    std::vector<qint32> states(prepared.size());
    qint32 state = 0;
    const char16_t *text = prepared.utf16();
    for (qsizetype i = 0; i < prepared.size(); ++i) {
        state = step(state, text[i]);
        states[i] = state;
    }
    return states;
}

std::vector<qsizetype> TextAutomaton::matchCounts(const std::vector<qint32> &states) const
{
    std::vector<qsizetype> counts(m_nodes.size(), 0);
    for (const qint32 s : states)
        ++counts[s];
    // Deepest nodes first: a state's count also belongs to every node on its fail chain.
    for (std::size_t i = m_bfs.size(); i-- > 1;)
        counts[m_nodes[m_bfs[i]].fail] += counts[m_bfs[i]];
    return counts;
}

QList<qsizetype> TextAutomaton::firstOccurrences(QStringView text) const
{
    constexpr qsizetype Never = std::numeric_limits<qsizetype>::max();
    QList<qsizetype> starts(m_patternNode.size(), -1);
    if (findsNothing())
        return starts;
    const QString prepared = prepare(text);
    // Where each state is first reached, then handed down the fail chains: a pattern first ends
    // where the first state containing it is reached. For one pattern the first end is also the
    // first start, since all its occurrences have the same length.
    std::vector<qsizetype> firstEnd(m_nodes.size(), Never);
    qint32 state = 0;
    const char16_t *chars = QStringView(prepared).utf16();
    for (qsizetype i = 0; i < prepared.size(); ++i) {
        state = step(state, chars[i]);
        if (firstEnd[state] == Never)
            firstEnd[state] = i;
    }
    for (std::size_t i = m_bfs.size(); i-- > 1;) {
        const qint32 v = m_bfs[i];
        qsizetype &target = firstEnd[m_nodes[v].fail];
        target = std::min(target, firstEnd[v]);
    }
    for (qsizetype p = 0; p < m_patternNode.size(); ++p) {
        const qint32 node = m_patternNode.at(p);
        if (node >= 0 && firstEnd[node] != Never)
            starts[p] = firstEnd[node] - m_nodes[node].depth + 1;
    }
    return starts;
}
