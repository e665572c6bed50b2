#include "app/story/beatsheettemplates.h"

#include <algorithm>

namespace vl::app {

namespace {

BeatSheetTemplate threeAct()
{
    return {
        QStringLiteral("three-act"),
        QStringLiteral("Three-Act Structure"),
        QStringLiteral("The classic setup / confrontation / resolution shape."),
        {
            {QStringLiteral("Setup"),
             QStringLiteral("Establish the ordinary world, protagonist, and stakes."), 0},
            {QStringLiteral("Inciting Incident"),
             QStringLiteral("The event that disrupts the status quo."), 10},
            {QStringLiteral("First Plot Point"),
             QStringLiteral("The protagonist commits; the end of Act I."), 25},
            {QStringLiteral("Midpoint"), QStringLiteral("A major turn that raises the stakes."),
             50},
            {QStringLiteral("Second Plot Point"),
             QStringLiteral("The low point that launches Act III."), 75},
            {QStringLiteral("Climax"), QStringLiteral("The final confrontation."), 90},
            {QStringLiteral("Resolution"), QStringLiteral("The new normal; loose ends tied."), 100},
        }};
}

BeatSheetTemplate herosJourney()
{
    return {QStringLiteral("heros-journey"),
            QStringLiteral("The Hero's Journey"),
            QStringLiteral("Joseph Campbell and Christopher Vogler's twelve-stage monomyth: a hero "
                           "leaves home, is tested and returns changed."),
            {
                {QStringLiteral("Ordinary World"),
                 QStringLiteral("The hero's normal life before the adventure."), 0},
                {QStringLiteral("Call to Adventure"),
                 QStringLiteral("A problem or challenge is presented."), 8},
                {QStringLiteral("Refusal of the Call"),
                 QStringLiteral("The hero hesitates or resists."), 15},
                {QStringLiteral("Meeting the Mentor"),
                 QStringLiteral("Guidance and tools for the journey."), 20},
                {QStringLiteral("Crossing the Threshold"),
                 QStringLiteral("The hero commits and enters the special world."), 25},
                {QStringLiteral("Tests, Allies, Enemies"),
                 QStringLiteral("Learning the rules of the new world."), 35},
                {QStringLiteral("Approach to the Inmost Cave"),
                 QStringLiteral("Preparing for the central ordeal."), 45},
                {QStringLiteral("The Ordeal"),
                 QStringLiteral("The hero's greatest fear; a life-or-death crisis."), 50},
                {QStringLiteral("Reward"),
                 QStringLiteral("The hero survives and seizes the prize."), 60},
                {QStringLiteral("The Road Back"),
                 QStringLiteral("Driven to complete the journey home."), 75},
                {QStringLiteral("Resurrection"),
                 QStringLiteral("The final test; the hero is purified."), 90},
                {QStringLiteral("Return with the Elixir"),
                 QStringLiteral("Home, transformed, with a boon for the world."), 100},
            }};
}

BeatSheetTemplate saveTheCat()
{
    return {
        QStringLiteral("save-the-cat"),
        QStringLiteral("Save the Cat!"),
        QStringLiteral(
            "Blake Snyder's fifteen-beat sheet, from the opening image to its mirror at the end."),
        {
            {QStringLiteral("Opening Image"),
             QStringLiteral("A snapshot of the hero's world before."), 1},
            {QStringLiteral("Theme Stated"),
             QStringLiteral("The story's thematic premise, spoken."), 5},
            {QStringLiteral("Set-Up"), QStringLiteral("The hero, their flaw, and what's missing."),
             8},
            {QStringLiteral("Catalyst"), QStringLiteral("The life-changing event."), 10},
            {QStringLiteral("Debate"), QStringLiteral("The hero doubts the journey ahead."), 15},
            {QStringLiteral("Break into Two"),
             QStringLiteral("The hero chooses to act; the adventure begins."), 20},
            {QStringLiteral("B Story"),
             QStringLiteral("The secondary (often love/theme) storyline starts."), 22},
            {QStringLiteral("Fun and Games"),
             QStringLiteral("The promise of the premise; set pieces."), 35},
            {QStringLiteral("Midpoint"),
             QStringLiteral("A false victory or false defeat; stakes raised."), 50},
            {QStringLiteral("Bad Guys Close In"),
             QStringLiteral("Pressure mounts, internal and external."), 60},
            {QStringLiteral("All Is Lost"), QStringLiteral("The lowest point; a whiff of death."),
             75},
            {QStringLiteral("Dark Night of the Soul"),
             QStringLiteral("The hero's despair before the answer."), 78},
            {QStringLiteral("Break into Three"),
             QStringLiteral("The solution is found; theme and plot converge."), 80},
            {QStringLiteral("Finale"), QStringLiteral("The hero proves change and wins."), 90},
            {QStringLiteral("Final Image"),
             QStringLiteral("The mirror of the opening; how far they've come."), 100},
        }};
}

BeatSheetTemplate snowflake()
{
    return {QStringLiteral("snowflake"),
            QStringLiteral("The Snowflake Method"),
            QStringLiteral("Randy Ingermanson's ten escalating steps from a one-sentence outline "
                           "to a full draft."),
            {
                {QStringLiteral("One-Sentence Summary"),
                 QStringLiteral("A single sentence that sells the whole novel."), 0},
                {QStringLiteral("One-Paragraph Summary"),
                 QStringLiteral("Five sentences: setup, three disasters, ending."), 10},
                {QStringLiteral("Character Summaries"),
                 QStringLiteral("A page per major character: goal, motivation, conflict."), 20},
                {QStringLiteral("One-Page Plot Summary"),
                 QStringLiteral("Expand each paragraph sentence into its own paragraph."), 30},
                {QStringLiteral("Character Charts"),
                 QStringLiteral("Detailed backstory and worldview for each character."), 45},
                {QStringLiteral("Four-Page Synopsis"),
                 QStringLiteral("Expand each plot paragraph into a full page."), 60},
                {QStringLiteral("Character Bibles"),
                 QStringLiteral("Everything about each character."), 70},
                {QStringLiteral("Scene List"),
                 QStringLiteral("A list of every scene: POV and what happens."), 85},
                {QStringLiteral("Scene Briefs"),
                 QStringLiteral("A paragraph per scene before writing."), 95},
                {QStringLiteral("First Draft"),
                 QStringLiteral("Write the manuscript from the scene briefs."), 100},
            }};
}

} // namespace

const QList<BeatSheetTemplate> &beatSheetTemplates()
{
    static const QList<BeatSheetTemplate> templates{threeAct(), herosJourney(), saveTheCat(),
                                                    snowflake()};
    return templates;
}

const BeatSheetTemplate *findBeatSheetTemplate(const QString &id)
{
    const QList<BeatSheetTemplate> &templates = beatSheetTemplates();
    const auto found =
        std::find_if(templates.cbegin(), templates.cend(),
                     [&id](const BeatSheetTemplate &candidate) { return candidate.id == id; });
    return found == templates.cend() ? nullptr : &*found;
}

} // namespace vl::app
