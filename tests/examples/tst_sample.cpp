#include "app/base/wordcount.h"
#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "app/time/continuitychecker.h"
#include "core/content/entity.h"
#include "core/content/map.h"
#include "core/content/media.h"

#include <QtTest/QtTest>

using namespace vl;

/// The sample world is what newcomers open first: it must load, be written back as it stands, and
/// hold something for every panel.
class TestSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isWrittenBackAsItStands();
    void holdsSomethingForEveryPanel();
    void refersToNothingThatIsMissing();
    void contradictsItselfWhereItShould();

private:
    std::unique_ptr<core::Project> m_project;
};

void TestSample::init()
{
    auto loaded = app::loadProject(QStringLiteral(IVOREL_SAMPLE));
    QVERIFY2(bool(loaded), loaded ? "" : qPrintable(loaded.message()));
    m_project = *std::move(loaded);
}

void TestSample::isWrittenBackAsItStands()
{
    int files = 0;
    app::serializeProject(*m_project, [&files](const QString &path, const QByteArray &bytes) {
        QFile file(QStringLiteral(IVOREL_SAMPLE "/") + path);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
        QCOMPARE(bytes, file.readAll());
        ++files;
    });
    QVERIFY(files > 100);
}

void TestSample::holdsSomethingForEveryPanel()
{
    std::map<core::ContentKind, int> counts;
    for (const auto &[id, object] : m_project->objects())
        ++counts[object->kind()];
    for (int kind = 0; kind < int(core::contentKindTexts.size()); ++kind)
        QVERIFY2(counts[core::ContentKind(kind)] > 0,
                 core::contentKindTexts.text(core::ContentKind(kind)).data());
    QVERIFY(counts[core::ContentKind::Entity] >= 25);
    QVERIFY(counts[core::ContentKind::TimelineEvent] >= 30);

    qsizetype words = 0;
    int scenes = 0;
    for (const core::Document *document : m_project->all<core::Document>()) {
        const bool isScene =
            document->documentKind() == core::DocumentKind::Prose && !document->parentId().isNull();
        scenes += isScene;
        words += isScene ? app::countWords(document->body()) : 0;
    }
    QVERIFY(scenes >= 12);
    QVERIFY(words >= 2500);

    std::set<core::FieldType> types;
    for (const core::ContentId &id : m_project->taxonomy().ids())
        for (const core::FieldDefinition &field : m_project->taxonomy().find(id)->fields)
            types.insert(field.type);
    QCOMPARE(types.size(), core::fieldTypeTexts.size());
    QVERIFY(m_project->taxonomy().size() >= 5);
    QCOMPARE(m_project->reckonings().size(), 1);
}

void TestSample::refersToNothingThatIsMissing()
{
    for (const core::Entity *entity : m_project->all<core::Entity>())
        QVERIFY2(m_project->taxonomy().contains(entity->categoryId()), qPrintable(entity->name()));
    for (const core::Document *document : m_project->all<core::Document>())
        QVERIFY2(document->parentId().isNull() || m_project->contains(document->parentId()),
                 qPrintable(document->title()));
    for (const core::Map *map : m_project->all<core::Map>()) {
        QVERIFY(QFile::exists(QStringLiteral(IVOREL_SAMPLE "/") + map->imageAssetPath()));
        for (const core::MapRoute &route : map->routes())
            QVERIFY(m_project->contains(route.fromEntityId)
                    && m_project->contains(route.toEntityId));
    }
    for (const core::BeatAssignment &beat : m_project->beatSheet().assignments)
        QVERIFY(m_project->contains(beat.documentId));
}

void TestSample::contradictsItselfWhereItShould()
{
    QStringList messages;
    for (const app::TimelineConflict &conflict : app::findTimelineConflicts(*m_project))
        messages.append(conflict.message);
    QVERIFY(messages.contains(QStringLiteral("Harbourmaster Quill is in two places at once: "
                                             "\"Quill rows out\" and \"Quill is seen at "
                                             "the Harbour Office\"."))
            || messages.contains(QStringLiteral(
                "Harbourmaster Quill is in two places at once: \"Quill is seen at the Harbour "
                "Office\" and \"Quill rows out\".")));
    QVERIFY(messages.contains(QStringLiteral(
        "The Cook's Boy takes part in \"Teska boards the dark boat\" after death.")));
    QVERIFY2(messages.size() == 2, qPrintable(messages.join(u'\n')));
    QVERIFY(app::checkContinuityRules(*m_project).empty());
}

QTEST_GUILESS_MAIN(TestSample)
#include "tst_sample.moc"
