#include "app/story/storytemplates.h"

#include <QtCore/QCoreApplication>

namespace vl::app {

using namespace core;

namespace {

/// The texts of the templates.
class StoryTexts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::StoryTemplates)
};

// Keys that entities store their values under, whatever the language of the labels.
const QLatin1String role("role");
const QLatin1String wants("wants");
const QLatin1String needs("needs");

FieldDefinition field(const char *key, const QString &label, FieldType type = FieldType::Text,
                      const QString &description = {})
{
    return TemplateBuilder::field(QLatin1String(key), label, type, description);
}

QList<FieldDefinition> characterFields()
{
    return {
        TemplateBuilder::choice(role, StoryTexts::tr("Role"),
                                {StoryTexts::tr("Protagonist"), StoryTexts::tr("Antagonist"),
                                 StoryTexts::tr("Ally"), StoryTexts::tr("Love interest"),
                                 StoryTexts::tr("Mentor"), StoryTexts::tr("Supporting")}),
        field("age", StoryTexts::tr("Age"), FieldType::Number),
        field("occupation", StoryTexts::tr("Occupation")),
        field("appearance", StoryTexts::tr("Appearance"), FieldType::Text,
              StoryTexts::tr("What a stranger would notice first.")),
        field("voice", StoryTexts::tr("Voice"), FieldType::Text,
              StoryTexts::tr("How they speak: pace, pet words, what they never say.")),
        field("wants", StoryTexts::tr("Wants"), FieldType::Text,
              StoryTexts::tr("What they go after from the first page on.")),
        field("needs", StoryTexts::tr("Needs"), FieldType::Text,
              StoryTexts::tr("What they must learn or let go of.")),
        field("fears", StoryTexts::tr("Fears")),
        field("secret", StoryTexts::tr("Secret")),
        field("home", StoryTexts::tr("Home"), FieldType::Reference,
              StoryTexts::tr("A place of the codex.")),
        field("family", StoryTexts::tr("Related to"), FieldType::Reference,
              StoryTexts::tr("A person of the codex.")),
    };
}

QList<FieldDefinition> placeFields()
{
    return {
        TemplateBuilder::choice(QStringLiteral("kind"), StoryTexts::tr("Kind"),
                                {StoryTexts::tr("Region"), StoryTexts::tr("Town"),
                                 StoryTexts::tr("Building"), StoryTexts::tr("Room"),
                                 StoryTexts::tr("Wilderness")}),
        field("within", StoryTexts::tr("Lies in"), FieldType::Reference,
              StoryTexts::tr("A place of the codex.")),
        field("senses", StoryTexts::tr("Senses"), FieldType::Text,
              StoryTexts::tr("What is seen, heard and smelled there.")),
        field("mood", StoryTexts::tr("Mood")),
        field("history", StoryTexts::tr("History")),
    };
}

QList<FieldDefinition> itemFields()
{
    return {
        field("look", StoryTexts::tr("Appearance")),
        field("owner", StoryTexts::tr("Owner"), FieldType::Reference,
              StoryTexts::tr("A person of the codex.")),
        field("meaning", StoryTexts::tr("Meaning"), FieldType::Text,
              StoryTexts::tr("Why the story cannot do without it.")),
    };
}

QList<FieldDefinition> groupFields()
{
    return {
        field("purpose", StoryTexts::tr("Purpose")),
        field("leader", StoryTexts::tr("Led by"), FieldType::Reference,
              StoryTexts::tr("A person of the codex.")),
        field("seat", StoryTexts::tr("Seat"), FieldType::Reference,
              StoryTexts::tr("A place of the codex.")),
        field("enemies", StoryTexts::tr("Enemies")),
    };
}

/// The categories that every story has; gives that of the people.
ContentId addWorld(TemplateBuilder &builder)
{
    const ContentId people = builder.addCategory(StoryTexts::tr("Characters"), characterFields());
    builder.addCategory(StoryTexts::tr("Places"), placeFields());
    builder.addCategory(StoryTexts::tr("Things"), itemFields());
    builder.addCategory(StoryTexts::tr("Groups"), groupFields());
    builder.addEntityTemplate(StoryTexts::tr("Main character"), people,
                              {{role, StoryTexts::tr("Protagonist")}, {wants, {}}, {needs, {}}});
    return people;
}

void addRevisionTasks(TemplateBuilder &builder)
{
    const QString board = StoryTexts::tr("Revision");
    builder.addTask(board, StoryTexts::tr("Read the whole draft without changing anything"),
                    StoryTexts::tr("Note only where you were bored, lost or moved."));
    builder.addTask(board, StoryTexts::tr("Does each scene change something?"));
    builder.addTask(board,
                    StoryTexts::tr("Follow each plot thread from its first scene to its last"));
    builder.addTask(board, StoryTexts::tr("Check names, ages and dates against the codex"));
    builder.addTask(board, StoryTexts::tr("Read the dialogue aloud"));
    builder.addTask(board, StoryTexts::tr("Proofread the last version"));
}

/// A scene in a chapter of its own, put on a beat of the structure.
struct SceneIdea
{
    QString title;
    QString synopsis;
    QString beat; ///< untranslated: the key of the beat
};

void addAct(TemplateBuilder &builder, const QString &title, const QList<SceneIdea> &scenes,
            int &chapter)
{
    const Document &act = builder.addDocument(DocumentKind::Prose, title);
    for (const SceneIdea &idea : scenes) {
        Document &place = builder.addDocument(
            DocumentKind::Prose, StoryTexts::tr("Chapter %1").arg(++chapter), act.id());
        place.setStatus(StoryTexts::tr("Outline"));
        Document &scene =
            builder.addDocument(DocumentKind::Prose, idea.title, place.id(), idea.synopsis);
        scene.setStatus(StoryTexts::tr("Outline"));
        scene.setWordCountTarget(1500);
        builder.assign(scene, idea.beat);
    }
}

} // namespace

void fillNovel(TemplateBuilder &builder)
{
    builder.useBeatSheet(QStringLiteral("three-act"));
    int chapter = 0;
    addAct(builder, StoryTexts::tr("Act One"),
           {{StoryTexts::tr("The ordinary world"),
             StoryTexts::tr("Who is this about, what do they want, and what is missing?"),
             QStringLiteral("Setup")},
            {StoryTexts::tr("The disturbance"),
             StoryTexts::tr("What happens that cannot be taken back?"),
             QStringLiteral("Inciting Incident")},
            {StoryTexts::tr("The door closes"),
             StoryTexts::tr("The choice after which there is no way home."),
             QStringLiteral("First Plot Point")}},
           chapter);
    addAct(
        builder, StoryTexts::tr("Act Two"),
        {{StoryTexts::tr("The turn"), StoryTexts::tr("What they believed turns out to be wrong."),
          QStringLiteral("Midpoint")},
         {StoryTexts::tr("The loss"), StoryTexts::tr("Everything that was won is gone."),
          QStringLiteral("Second Plot Point")}},
        chapter);
    addAct(
        builder, StoryTexts::tr("Act Three"),
        {{StoryTexts::tr("The reckoning"), StoryTexts::tr("They face what they fled from."),
          QStringLiteral("Climax")},
         {StoryTexts::tr("What remains"), StoryTexts::tr("Who are they now, and what did it cost?"),
          QStringLiteral("Resolution")}},
        chapter);
    const Document &notes = builder.addNote(StoryTexts::tr("Notes"), {});
    builder.addNote(
        StoryTexts::tr("Premise"),
        StoryTexts::tr("# Premise\n\nWhen …, someone who … must …, or else ….\n\n# Theme\n\n"
                       "What does the story believe at its end that it did not at its beginning?"),
        notes.id());
    builder.addNote(StoryTexts::tr("Synopsis"),
                    StoryTexts::tr("The whole story on one page, its end included."), notes.id());
    builder.addNote(
        StoryTexts::tr("Style sheet"),
        StoryTexts::tr("- Person and tense:\n- Spelling:\n- Names and how they are written:\n"
                       "- Numbers and dates:\n- Words to avoid:"),
        notes.id());
    builder.addNote(StoryTexts::tr("Research"), {}, notes.id());
    addWorld(builder);
    builder.addThread(StoryTexts::tr("Main plot"),
                      StoryTexts::tr("The question that the first chapter raises."),
                      QStringLiteral("#2f6fdb"));
    builder.addThread(StoryTexts::tr("Inner change"),
                      StoryTexts::tr("What the main character learns."), QStringLiteral("#3a8f5b"));
    builder.addThread(StoryTexts::tr("Subplot"),
                      StoryTexts::tr("The same theme, seen from another side."),
                      QStringLiteral("#b5602f"));
    addRevisionTasks(builder);
    builder.project().setWritingGoal({500, 80000, {}});
}

void fillSeries(TemplateBuilder &builder)
{
    for (const QString &title :
         {StoryTexts::tr("Book One"), StoryTexts::tr("Book Two"), StoryTexts::tr("Book Three")}) {
        const Document &book =
            builder.addDocument(DocumentKind::Prose, title, {},
                                StoryTexts::tr("What this book answers, and what it leaves "
                                               "open for the next."));
        for (int i = 1; i <= 3; ++i) {
            Document &chapter = builder.addDocument(DocumentKind::Prose,
                                                    StoryTexts::tr("Chapter %1").arg(i), book.id());
            chapter.setStatus(StoryTexts::tr("Outline"));
        }
    }
    const Document &bible = builder.addNote(StoryTexts::tr("Series bible"), {});
    builder.addNote(StoryTexts::tr("The long arc"),
                    StoryTexts::tr("# The question of the series\n\n# How each book turns it\n\n"
                                   "## Book One\n\n## Book Two\n\n## Book Three\n\n# How it ends"),
                    bible.id());
    builder.addNote(
        StoryTexts::tr("What is settled"),
        StoryTexts::tr("Facts that a later book must not contradict, with the chapter that set "
                       "them.\n\n- "),
        bible.id());
    builder.addNote(
        StoryTexts::tr("What is promised"),
        StoryTexts::tr("Hints and open questions, and where they are to be answered.\n\n- "),
        bible.id());
    builder.addNote(StoryTexts::tr("Rules of the world"),
                    StoryTexts::tr("# What is possible\n\n# What it costs\n\n# What is impossible"),
                    bible.id());
    const ContentId people = addWorld(builder);
    const int books = 3;
    for (int i = 1; i <= books; ++i)
        builder.project().editTaxonomy().insertField(
            people, characterFields().size() + i - 1,
            TemplateBuilder::field(QStringLiteral("book%1").arg(i),
                                   StoryTexts::tr("At the end of book %1").arg(i)));
    builder.addCategory(StoryTexts::tr("Peoples and languages"),
                        {field("customs", StoryTexts::tr("Customs")),
                         field("speech", StoryTexts::tr("Speech")),
                         field("land", StoryTexts::tr("Land"), FieldType::Reference,
                               StoryTexts::tr("A place of the codex."))});
    builder.addCategory(StoryTexts::tr("History"),
                        {field("when", StoryTexts::tr("When"), FieldType::Date),
                         field("cause", StoryTexts::tr("Cause")),
                         field("effect", StoryTexts::tr("Consequences"))});
    builder.addCategory(StoryTexts::tr("Glossary"),
                        {field("meaning", StoryTexts::tr("Meaning")),
                         field("spoken", StoryTexts::tr("Pronunciation"))});
    builder.addThread(StoryTexts::tr("Series arc"), StoryTexts::tr("Runs through all books."),
                      QStringLiteral("#2f6fdb"));
    builder.addThread(StoryTexts::tr("Arc of book one"),
                      StoryTexts::tr("Begins and ends in the first book."),
                      QStringLiteral("#3a8f5b"));
    builder.addThread(StoryTexts::tr("Arc of book two"),
                      StoryTexts::tr("Begins and ends in the second book."),
                      QStringLiteral("#b5602f"));
    builder.addThread(StoryTexts::tr("Arc of book three"),
                      StoryTexts::tr("Begins and ends in the third book."),
                      QStringLiteral("#8a4fb0"));
    addRevisionTasks(builder);
    builder.project().setWritingGoal({500, 300000, {}});
}

void fillScreenplay(TemplateBuilder &builder)
{
    builder.useBeatSheet(QStringLiteral("three-act"));
    struct Sequence
    {
        QString title;
        QString synopsis;
        QString beat;
    };
    const QList<Sequence> sequences{
        {StoryTexts::tr("Opening"), StoryTexts::tr("An image that holds the whole film."),
         QStringLiteral("Setup")},
        {StoryTexts::tr("The disturbance"), StoryTexts::tr("What sets everything off, by page 12."),
         QStringLiteral("Inciting Incident")},
        {StoryTexts::tr("Into the second act"),
         StoryTexts::tr("A decision, shown and not told, by page 25."),
         QStringLiteral("First Plot Point")},
        {StoryTexts::tr("Midpoint"), StoryTexts::tr("A false victory or a false defeat."),
         QStringLiteral("Midpoint")},
        {StoryTexts::tr("All is lost"), StoryTexts::tr("The lowest point, by page 75."),
         QStringLiteral("Second Plot Point")},
        {StoryTexts::tr("Showdown"), StoryTexts::tr("The last confrontation."),
         QStringLiteral("Climax")},
        {StoryTexts::tr("Final image"), StoryTexts::tr("The opening, changed."),
         QStringLiteral("Resolution")}};
    for (const Sequence &sequence : sequences) {
        Document &document =
            builder.addDocument(DocumentKind::Screenplay, sequence.title, {}, sequence.synopsis);
        document.setStatus(StoryTexts::tr("Outline"));
        builder.assign(document, sequence.beat);
    }
    builder.project()
        .find<Document>(builder.project().beatSheet().assignments.first().documentId)
        ->setBody(
            StoryTexts::tr("FADE IN:\n\nINT. A ROOM - DAY\n\nWhat we see and hear, in the present "
                           "tense.\n\nCHARACTER\n(quietly)\nWhat is said.\n"));
    const Document &notes = builder.addNote(StoryTexts::tr("Development"), {});
    builder.addNote(StoryTexts::tr("Logline"),
                    StoryTexts::tr("One sentence: who, what they want, what stands in the way, "
                                   "what is at stake."),
                    notes.id());
    builder.addNote(StoryTexts::tr("Treatment"),
                    StoryTexts::tr("The film in prose, in the present tense, two to five "
                                   "pages."),
                    notes.id());
    builder.addNote(StoryTexts::tr("Step outline"), StoryTexts::tr("1. "), notes.id());
    builder.addCategory(
        StoryTexts::tr("Cast"),
        {TemplateBuilder::choice(role, StoryTexts::tr("Role"),
                                 {StoryTexts::tr("Lead"), StoryTexts::tr("Antagonist"),
                                  StoryTexts::tr("Supporting"), StoryTexts::tr("Day player"),
                                  StoryTexts::tr("Background")}),
         field("age", StoryTexts::tr("Playing age")),
         field("look", StoryTexts::tr("First impression")), field("voice", StoryTexts::tr("Voice")),
         field("wants", StoryTexts::tr("Wants")), field("needs", StoryTexts::tr("Needs")),
         field("arc", StoryTexts::tr("Arc"))});
    builder.addCategory(
        StoryTexts::tr("Locations"),
        {TemplateBuilder::choice(
             QStringLiteral("setting"), StoryTexts::tr("Setting"),
             {StoryTexts::tr("Interior"), StoryTexts::tr("Exterior"), StoryTexts::tr("Both")}),
         field("look", StoryTexts::tr("Look")), field("sound", StoryTexts::tr("Sound")),
         field("night", StoryTexts::tr("Also at night"), FieldType::Boolean)});
    builder.addCategory(StoryTexts::tr("Props"),
                        {field("look", StoryTexts::tr("Look")),
                         field("owner", StoryTexts::tr("Owner"), FieldType::Reference,
                               StoryTexts::tr("A person of the cast."))});
    builder.addThread(StoryTexts::tr("A story"), StoryTexts::tr("The outer conflict."),
                      QStringLiteral("#2f6fdb"));
    builder.addThread(StoryTexts::tr("B story"),
                      StoryTexts::tr("The relationship that carries the theme."),
                      QStringLiteral("#b5602f"));
    const QString board = StoryTexts::tr("Drafts");
    builder.addTask(board, StoryTexts::tr("Outline on cards"));
    builder.addTask(board, StoryTexts::tr("First draft without looking back"));
    builder.addTask(board, StoryTexts::tr("Cut ten pages"));
    builder.addTask(board, StoryTexts::tr("Table read"));
}

} // namespace vl::app
