// What must hold when versions of a project's file that others wrote are brought together: a side
// equal to the base yields the other one, the order of the sides does not matter, and what comes
// out of a conflict by the user's hand is a file again.

#include "app/models/externalchangesmodel.h"
#include "app/storage/jsonmerge.h"
#include "app/storage/reconcile.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdint>
#include <cstdlib>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Makes objects of few names and few values, so that the sides meet often.
class Maker
{
public:
    explicit Maker(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    QJsonObject object(int depth = 0)
    {
        QJsonObject made;
        for (int count = next() % 5; count > 0; --count) {
            const QString name(1, QChar(u'a' + next() % 4));
            made.insert(name, value(depth));
        }
        return made;
    }

private:
    int next() { return m_at < m_bytes.size() ? uint8_t(m_bytes[m_at++]) : 0; }

    QJsonValue value(int depth)
    {
        switch (next() % (depth < 100 ? 8 : 4)) {
        case 0:
            return QJsonValue::Null;
        case 1:
            return next() % 2 == 0;
        case 2:
            return next() % 4;
        case 3:
            return text();
        case 4:
            return QJsonArray{next() % 4, text()};
        default:
            return object(depth + 1);
        }
    }

    QString text()
    {
        static const char letters[] = "\n\nab";
        QString made;
        for (int count = next() % 16; count > 0; --count)
            made += QLatin1Char(letters[next() % 4]);
        return made;
    }

    QByteArray m_bytes;
    qsizetype m_at = 0;
};

void checkObjects(const QByteArray &bytes)
{
    Maker maker(bytes);
    const QJsonObject base = maker.object();
    const QJsonObject local = maker.object();
    const QJsonObject remote = maker.object();
    for (const JsonMerge &merge :
         {JsonMerge::merge(base, local, base), JsonMerge::merge(base, base, local),
          JsonMerge::merge(base, local, local), JsonMerge::merge({}, local, {})})
        require(merge.isClean() && merge.object == local);
    const JsonMerge forth = JsonMerge::merge(base, local, remote);
    const JsonMerge back = JsonMerge::merge(base, remote, local);
    require(forth.conflicts == back.conflicts);
    require(!forth.isClean() || forth.object == back.object);
    require(forth.textKey.isEmpty() == forth.markedText.isEmpty());
}

void checkReconcile(const QByteArray &base, const QByteArray &local, const QByteArray &remote)
{
    const QString path = QStringLiteral("objects/a.json");
    if (const auto merged = mergeMembers(path, base, local, remote))
        require(Reconcile::isValidFor(path, *merged));
    const auto files = [&](const QByteArray &bytes) {
        return bytes.isEmpty() ? Reconcile::Files()
                               : Reconcile::Files{{path, QString::fromUtf8(bytes)}};
    };
    OutsideState state;
    state.files.push_back({.path = path, .id = {}, .baseId = {}, .base = base, .remote = remote});
    ExternalChangesModel model(state, Reconcile::build(files(base), files(local), files(remote)));
    for (int row = 0; row < model.rowCount(); ++row) {
        (void)model.versions(row);
        if (model.choice(row) != ExternalChangesModel::Choice::Undecided)
            continue;
        if (model.canEdit(row)) {
            require(!model.chooseText(row, model.editableText(row)));
            QString text = QString::fromUtf8(remote);
            text.replace(u'<', u'a').replace(u'=', u'a').replace(u'>', u'a');
            require(bool(model.chooseText(row, text)));
            require(bool(Reconcile::apply(model.resolution())));
        }
        model.chooseTheirs(row);
        model.chooseMine(row);
    }
    require(model.undecided() == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkObjects(bytes);
    // The bytes themselves as the three versions, and as a text that both sides changed.
    const QList<QByteArray> parts = bytes.split('|');
    checkReconcile(parts.value(0), parts.value(1), parts.value(2));
    const auto withText = [&](int part) {
        return QJsonDocument(
                   QJsonObject{{QStringLiteral("body"), QString::fromUtf8(parts.value(part))},
                               {QStringLiteral("id"), QStringLiteral("x")}})
            .toJson();
    };
    checkReconcile(withText(0), withText(1), withText(2));
    return 0;
}
