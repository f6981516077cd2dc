#pragma once
// Finds many texts at once in one pass over an answer (an Aho-Corasick automaton). Looking each
// text up on its own costs texts × answer; a thousand masks over a 300 KB answer, or thousands
// of rail labels, made that the slowest step of the window thread. Built once per set of texts,
// it answers "where does each text first occur" and "which texts end here" in one walk.

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <vector>

class TextAutomaton
{
public:
    TextAutomaton() = default;
    // Empty patterns are never found. Patterns equal under `cs` share one entry: patternNode()
    // gives both the same node, and nodePattern() names the first of them.
    TextAutomaton(const QStringList &patterns, Qt::CaseSensitivity cs);

    qsizetype patternCount() const { return m_patternNode.size(); }
    bool findsNothing() const { return m_nodes.size() <= 1; }
    qsizetype longestPattern() const { return m_longest; }

    // The text as the automaton compares it: case-folded character by character when letter case
    // is ignored (the length never changes, so positions carry over to the original text).
    QString prepare(QStringView text) const;

    // Start of the first occurrence of every pattern in `text` (-1 when absent). First means
    // leftmost start, as a separate indexOf per pattern would give.
    QList<qsizetype> firstOccurrences(QStringView text) const;

    // --- the walk, for callers that need every occurrence ---------------------------------------
    // The automaton's state after each character of a prepared text.
    std::vector<qint32> walk(QStringView prepared) const;
    // The pattern node of each pattern, -1 for an empty one.
    qint32 patternNode(qsizetype pattern) const { return m_patternNode.at(pattern); }
    // The first pattern that ends at `node`, -1 when none does.
    qint32 nodePattern(qint32 node) const { return m_nodes[node].pattern; }
    qint32 nodeDepth(qint32 node) const { return m_nodes[node].depth; }
    // The longest pattern node ending in `state` (-1 when none); follow with nextMatch() for the
    // shorter ones that end at the same place.
    qint32 firstMatch(qint32 state) const { return m_nodes[state].output; }
    qint32 nextMatch(qint32 node) const { return m_nodes[m_nodes[node].fail].output; }
    // For each node, how many states of `walk` contain it as a match (its occurrence count).
    std::vector<qsizetype> matchCounts(const std::vector<qint32> &states) const;
    // Whether pattern node `node` ends at a position whose walk state is `state`.
    bool endsIn(qint32 node, qint32 state) const
    {
        return m_enter[node] <= m_enter[state] && m_enter[state] < m_leave[node];
    }

private:
    struct Node
    {
        qint32 fail = 0;
        qint32 output = -1;  // nearest node on the fail chain (itself included) that ends a pattern
        qint32 pattern = -1; // first pattern ending here
        qint32 depth = 0;
        qint32 childBegin = 0;
        qint32 childCount = 0;
    };

    qint32 child(qint32 node, char16_t c) const;
    // The next state after reading `c`: one table look-up where the table was built, else the
    // trie with its fail links.
    qint32 step(qint32 state, char16_t c) const
    {
        if (m_table.empty())
            return slowStep(state, c);
        const qint32 cls = c < 128 ? m_asciiClass[c] : wideClass(c);
        return cls == 0 ? 0 : m_table[std::size_t(state) * m_classes + cls - 1];
    }
    qint32 slowStep(qint32 state, char16_t c) const;
    qint32 wideClass(char16_t c) const;
    void buildTable();

    Qt::CaseSensitivity m_cs = Qt::CaseSensitive;
    std::vector<Node> m_nodes{Node{}};
    std::vector<char16_t> m_childChar;
    std::vector<qint32> m_childNode;
    std::vector<qint32> m_rootAscii; // the root's moves for the characters most answers consist of
    // The moves of every state for every character some pattern contains (a character no pattern
    // contains always leads back to the start): classes of such characters, then a table of
    // states × classes.
    qint32 m_classes = 0;
    std::vector<qint32> m_asciiClass;
    std::vector<char16_t> m_wideChars; // sorted; class = index + 1 + ASCII classes
    qint32 m_asciiClasses = 0;
    std::vector<qint32> m_table;
    std::vector<qint32> m_bfs;       // nodes by depth: a node's fail target always comes before it
    std::vector<qint32> m_enter, m_leave; // positions in a walk of the fail tree, for endsIn()
    QList<qint32> m_patternNode;
    qsizetype m_longest = 0;
};
