#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <unordered_map>
#include <vector>

namespace vl::app {

/// Finds the names of many things in many texts, in time linear in the texts however many names
/// there are. Names match as whole words, the longest first; what stands between their words must
/// be the same, any white space being one blank and the two apostrophes being equal, so possessives
/// are found. A word with a capital in it matches as it is written or in capitals throughout
/// ("Will" is not "will"); any other matches in every case of letters.
class NameFinder
{
public:
    /// Names of more words than this are not searched for.
    static constexpr int maximumWords = 32;

    /// Adds a name of the thing with this number; several things may bear one name.
    void add(const QString &name, int thing);

    /// How often each thing is named in the text; things that are not are left out.
    QHash<int, qint64> count(const QString &text) const;

private:
    /// One spelling of a name and who bears it.
    struct Name
    {
        QStringList words;
        std::vector<int> things;
    };
    struct Node
    {
        std::vector<int> names; ///< that end here; they differ in capitals only
    };
    struct Token;

    static bool nextToken(QStringView text, qsizetype &at, Token &token);
    static bool isSpelledLike(const QString &listed, QStringView written);
    int matchAt(QStringView text, const Token &first, qsizetype *end) const;

    std::vector<Name> m_names;
    std::vector<Node> m_nodes = std::vector<Node>(1);
    std::unordered_map<quint64, int>
        m_steps; ///< from a node over a gap and a folded word to a node
};

} // namespace vl::app
