#include "tests/support/treetext.h"

namespace vl::test {

using namespace vl::core;

QString treeText(const Project &project)
{
    QString text;
    for (const DocumentTree::Place &place : project.documentTree().inOrder())
        text +=
            QString(place.depth, QLatin1Char(' ')) + place.document->title() + QLatin1Char('\n');
    return text;
}

void buildTree(Project &project, const QString &text)
{
    QList<ContentId> above; // the last document at each depth
    QList<int> next{0};     // the sort index that comes next at each depth
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QString title = line.trimmed();
        const auto depth = line.size() - title.size();
        Q_ASSERT(depth <= above.size());
        auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, title);
        if (depth > 0)
            document->setParentId(above.at(depth - 1));
        above.resize(depth);
        next.resize(depth + 1);
        document->setSortIndex(next[depth]++);
        above.append(document->id());
        next.append(0);
        project.add(std::move(document));
    }
}

Document *documentTitled(const Project &project, const QString &title)
{
    for (Document *document : project.all<Document>())
        if (document->title() == title)
            return document;
    return nullptr;
}

QString walkHistory(CommandStack &stack, const QStringList &states,
                    const std::function<QString()> &print)
{
    const auto check = [&](qsizetype state, const char *where) {
        const QString now = print();
        return now == states.at(state) ? QString()
                                       : QStringLiteral("%1 %2: expected\n%3\nbut got\n%4")
                                             .arg(QLatin1String(where))
                                             .arg(state)
                                             .arg(states.at(state), now);
    };
    if (stack.undoCount() != states.size() - 1)
        return QStringLiteral("%1 steps for %2 states").arg(stack.undoCount()).arg(states.size());
    for (int round = 0; round < 2; ++round) {
        for (qsizetype state = states.size() - 1; state > 0; --state) {
            if (const QString fault = check(state, "before undoing"); !fault.isEmpty())
                return fault;
            stack.undo();
        }
        for (qsizetype state = 0; state < states.size(); ++state) {
            if (state > 0)
                stack.redo();
            if (const QString fault = check(state, "after redoing to"); !fault.isEmpty())
                return fault;
        }
    }
    return {};
}

} // namespace vl::test
