#include "app/story/storytemplates.h"
#include "core/content/statblock.h"

#include <QtCore/QCoreApplication>

namespace vl::app {

using namespace core;

namespace {

/// The texts of the template.
class CampaignTexts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::CampaignTemplate)
};

FieldDefinition field(const char *key, const QString &label, FieldType type = FieldType::Text,
                      const QString &description = {})
{
    return TemplateBuilder::field(QLatin1String(key), label, type, description);
}

FieldDefinition choice(const char *key, const QString &label, const QStringList &options)
{
    return TemplateBuilder::choice(QLatin1String(key), label, options);
}

void addPeople(TemplateBuilder &builder)
{
    const ContentId people = builder.addCategory(CampaignTexts::tr("People"),
                                                 {field("look", CampaignTexts::tr("Appearance"))});
    builder.addCategory(CampaignTexts::tr("Player characters"),
                        {field("player", CampaignTexts::tr("Player")),
                         field("class", CampaignTexts::tr("Class")),
                         field("level", CampaignTexts::tr("Level"), FieldType::Number),
                         field("bonds", CampaignTexts::tr("Bonds"), FieldType::Text,
                               CampaignTexts::tr("Whom and what they would not give up.")),
                         field("goal", CampaignTexts::tr("Goal"))},
                        people);
    builder.addCategory(CampaignTexts::tr("Other characters"),
                        {choice("attitude", CampaignTexts::tr("Attitude"),
                                {CampaignTexts::tr("Friendly"), CampaignTexts::tr("Indifferent"),
                                 CampaignTexts::tr("Hostile")}),
                         field("voice", CampaignTexts::tr("Voice"), FieldType::Text,
                               CampaignTexts::tr("One sentence that you can play at the table.")),
                         field("wants", CampaignTexts::tr("Wants")),
                         field("secret", CampaignTexts::tr("Secret")),
                         field("place", CampaignTexts::tr("Found at"), FieldType::Reference,
                               CampaignTexts::tr("A place of the codex."))},
                        people);
}

void addWorld(TemplateBuilder &builder)
{
    builder.addCategory(CampaignTexts::tr("Places"),
                        {choice("kind", CampaignTexts::tr("Kind"),
                                {CampaignTexts::tr("Region"), CampaignTexts::tr("Settlement"),
                                 CampaignTexts::tr("Dungeon"), CampaignTexts::tr("Landmark")}),
                         field("within", CampaignTexts::tr("Lies in"), FieldType::Reference,
                               CampaignTexts::tr("A place of the codex.")),
                         field("senses", CampaignTexts::tr("Read aloud"), FieldType::Text,
                               CampaignTexts::tr("Two or three sentences for the players.")),
                         field("danger", CampaignTexts::tr("Danger")),
                         field("hidden", CampaignTexts::tr("What is hidden here"))});
    builder.addCategory(CampaignTexts::tr("Factions"),
                        {field("goal", CampaignTexts::tr("Goal")),
                         field("means", CampaignTexts::tr("Means")),
                         field("next", CampaignTexts::tr("Next move"), FieldType::Text,
                               CampaignTexts::tr("What happens if the players do nothing.")),
                         field("leader", CampaignTexts::tr("Led by"), FieldType::Reference,
                               CampaignTexts::tr("A person of the codex."))});
    builder.addCategory(CampaignTexts::tr("Quests"),
                        {choice("status", CampaignTexts::tr("Status"),
                                {CampaignTexts::tr("Rumour"), CampaignTexts::tr("Accepted"),
                                 CampaignTexts::tr("Done"), CampaignTexts::tr("Failed")}),
                         field("giver", CampaignTexts::tr("Given by"), FieldType::Reference,
                               CampaignTexts::tr("A person of the codex.")),
                         field("goal", CampaignTexts::tr("Goal")),
                         field("reward", CampaignTexts::tr("Reward")),
                         field("twist", CampaignTexts::tr("Twist"))});
    builder.addCategory(CampaignTexts::tr("Items"),
                        {choice("rarity", CampaignTexts::tr("Rarity"),
                                {CampaignTexts::tr("Common"), CampaignTexts::tr("Uncommon"),
                                 CampaignTexts::tr("Rare"), CampaignTexts::tr("Unique")}),
                         field("effect", CampaignTexts::tr("Effect")),
                         field("bearer", CampaignTexts::tr("Carried by"), FieldType::Reference,
                               CampaignTexts::tr("A person of the codex."))});
    builder.addCategory(CampaignTexts::tr("Gods and lore"),
                        {field("domain", CampaignTexts::tr("Domain")),
                         field("known", CampaignTexts::tr("What everybody knows")),
                         field("truth", CampaignTexts::tr("What is true"))});
}

void addSessions(TemplateBuilder &builder, const StringSet &master)
{
    const Document &guide = builder.addNote(CampaignTexts::tr("At the table"), {});
    builder.addNote(
        CampaignTexts::tr("Session zero"),
        CampaignTexts::tr("- Tone and theme:\n- Lines and veils:\n- House rules:\n"
                          "- How often, how long:\n- Why the characters travel together:"),
        guide.id());
    builder.addNote(CampaignTexts::tr("House rules"), {}, guide.id());
    Document &secrets =
        builder.addNote(CampaignTexts::tr("Secrets"),
                        CampaignTexts::tr("What the players do not know yet, and how they may "
                                          "find it out.\n\n- "),
                        guide.id());
    secrets.setVisibleTo(master);

    const Document &chronicle = builder.addDocument(
        DocumentKind::Prose, CampaignTexts::tr("Chronicle"), {},
        CampaignTexts::tr("What happened, session by session, as the players would tell it."));
    builder.addDocument(DocumentKind::Prose, CampaignTexts::tr("Session 1"), chronicle.id());
    const Document &plans = builder.addNote(CampaignTexts::tr("Preparation"), {});
    Document &plan = builder.addNote(
        CampaignTexts::tr("Plan for session 1"),
        CampaignTexts::tr(
            "# Strong start\n\n# Scenes that may happen\n\n- \n\n# Secrets and clues\n\n- \n\n"
            "# Places\n\n- \n\n# Characters\n\n- \n\n# Rewards\n\n- "),
        plans.id());
    plan.setVisibleTo(master);
}

} // namespace

void fillCampaign(TemplateBuilder &builder)
{
    const QString master = CampaignTexts::tr("Game master");
    builder.project().setAudiences({master, CampaignTexts::tr("Players")});
    addSessions(builder, {master});
    addPeople(builder);
    addWorld(builder);
    builder.addThread(CampaignTexts::tr("The great threat"),
                      CampaignTexts::tr("What comes nearer with each session."),
                      QStringLiteral("#b03a3a"));
    builder.addThread(CampaignTexts::tr("The characters’ own stories"),
                      CampaignTexts::tr("What each of them came for."), QStringLiteral("#2f6fdb"));
    builder.addTable(CampaignTexts::tr("On the road"),
                     {CampaignTexts::tr("A bridge with a toll that nobody set"),
                      CampaignTexts::tr("Travellers with a sick child"),
                      CampaignTexts::tr("Tracks that end in the middle of a field"),
                      CampaignTexts::tr("A storm by nightfall"),
                      CampaignTexts::tr("A patrol that looks for somebody like you"),
                      CampaignTexts::tr("An old shrine with fresh flowers")});
    builder.addTable(CampaignTexts::tr("Rumours in the tavern"),
                     {CampaignTexts::tr("The mill turns at night though there is no wind"),
                      CampaignTexts::tr("Somebody buys every map of the hills"),
                      CampaignTexts::tr("The old lord was seen, a year after his burial"),
                      CampaignTexts::tr("The well tastes of iron since the new moon")});
    StatBlockData guard;
    guard.title = CampaignTexts::tr("Town guard");
    guard.notes = CampaignTexts::tr("Calls for help before drawing a weapon.");
    guard.stats = {{CampaignTexts::tr("Armour"), QStringLiteral("14")},
                   {CampaignTexts::tr("Health"), QStringLiteral("11")},
                   {CampaignTexts::tr("Speed"), QStringLiteral("9")}};
    guard.actions = {{CampaignTexts::tr("Spear"), QStringLiteral("+3, 1d6+1")}};
    builder.project().add(std::make_unique<StatBlock>(ContentId::create(), guard));
    const QString board = CampaignTexts::tr("Before the next session");
    builder.addTask(board, CampaignTexts::tr("Read the notes of the last session"));
    builder.addTask(board, CampaignTexts::tr("Decide what each faction does next"));
    builder.addTask(board, CampaignTexts::tr("Prepare a strong start"));
}

} // namespace vl::app
