#include "app/text/stylewords.h"

#include <algorithm>

namespace vl::app {

namespace {

QStringList splitWords(QLatin1String words)
{
    return QString(words).split(u' ');
}

QStringList splitPhrases(QLatin1String phrases)
{
    return QString(phrases).split(u'|');
}

quint32 hashOf(QStringView word)
{
    quint32 hash = StyleVocabulary::hashSeed;
    for (const QChar unit : word)
        hash = StyleVocabulary::hashStep(hash, unit.unicode());
    return hash;
}

} // namespace

QStringList stylewords::formsOfToBe()
{
    return splitWords(QLatin1String("am is are was were be been being"));
}

QStringList stylewords::irregularParticiples()
{
    return splitWords(QLatin1String(
        "written spoken taken given done made seen known shown held told found brought thought "
        "caught taught built sent kept left felt put set born borne worn torn drawn grown thrown "
        "blown flown chosen frozen broken stolen driven forgotten hidden bitten beaten eaten "
        "fallen risen ridden gone begun sung become understood stood won lost bound ground wound "
        "shot sought fought sold dealt meant hung laid paid said lit split spread swept struck "
        "stuck slain sworn read led met"));
}

QStringList stylewords::fillers()
{
    return splitPhrases(QLatin1String(
        "very|really|quite|rather|somewhat|actually|basically|literally|simply|just|totally|"
        "definitely|certainly|essentially|virtually|honestly|absolutely|completely|extremely|"
        "entirely|utterly|kind of|sort of"));
}

QList<WordyPhrase> stylewords::wordyPhrases()
{
    static constexpr const char *rows[][2] = {
        {"in order to", "to"},
        {"due to the fact that", "because"},
        {"in spite of the fact that", "although"},
        {"in the event that", "if"},
        {"at this point in time", "now"},
        {"at the present time", "now"},
        {"for the purpose of", "for"},
        {"a large number of", "many"},
        {"the majority of", "most"},
        {"a majority of", "most"},
        {"with regard to", "about"},
        {"in reference to", "about"},
        {"in the near future", "soon"},
        {"on a regular basis", "regularly"},
        {"prior to", "before"},
        {"subsequent to", "after"},
        {"as a matter of fact", "in fact"},
        {"each and every", "every"},
        {"has the ability to", "can"},
        {"is able to", "can"},
        {"take into consideration", "consider"},
        {"in a timely manner", "promptly"},
    };
    QList<WordyPhrase> phrases;
    for (const auto &row : rows)
        phrases.append({QString::fromLatin1(row[0]), QString::fromLatin1(row[1])});
    return phrases;
}

QStringList stylewords::adverbExceptions()
{
    return splitWords(QLatin1String(
        "only ally rally tally bully belly jelly folly holly gully dolly filly lily doily family "
        "apply reply supply comply imply multiply monopoly assembly anomaly homily panoply "
        "friendly lonely lovely likely lively lowly homely comely costly deadly deathly earthly "
        "elderly ghastly ghostly godly gnarly grisly heavenly kingly knightly leisurely manly "
        "measly miserly motherly neighborly orderly prickly princely queenly saintly scholarly "
        "seemly shapely sickly sisterly smelly stately surly timely ugly unlikely unruly wobbly "
        "worldly silly chilly hilly curly burly holy oily early daily weekly monthly yearly "
        "nightly hourly quarterly really basically actually literally simply honestly definitely "
        "certainly essentially virtually completely extremely entirely absolutely totally "
        "utterly"));
}

QStringList stylewords::cliches()
{
    return splitPhrases(QLatin1String(
        "at the end of the day|think outside the box|the tip of the iceberg|a needle in a haystack|"
        "avoid like the plague|in the nick of time|the calm before the storm|"
        "a diamond in the rough|when all is said and done|few and far between|"
        "last but not least|easier said than done|the writing on the wall|"
        "leave no stone unturned|add insult to injury|back to square one|"
        "the best of both worlds|burning the midnight oil|cut to the chase|"
        "raining cats and dogs|once in a blue moon|read between the lines|"
        "beat around the bush|bite the bullet|break the ice|the whole nine yards|"
        "par for the course|hit the nail on the head|a blessing in disguise|"
        "better late than never|actions speak louder than words|the grass is always greener"));
}

const StyleVocabulary &StyleVocabulary::instance()
{
    static const StyleVocabulary vocabulary;
    return vocabulary;
}

StyleVocabulary::StyleVocabulary()
    : m_wordy(stylewords::wordyPhrases())
{
    for (const QString &word : stylewords::formsOfToBe())
        entryFor(word).isFormOfToBe = true;
    for (const QString &word : stylewords::irregularParticiples())
        entryFor(word).isParticiple = true;
    for (const QString &word : stylewords::adverbExceptions())
        entryFor(word).isAdverbException = true;
    entryFor(QStringLiteral("not")).isNot = true;

    addPhrases(Fillers, stylewords::fillers());
    addPhrases(Cliches, stylewords::cliches());
    QStringList wordy;
    for (const WordyPhrase &row : std::as_const(m_wordy))
        wordy.append(row.phrase);
    addPhrases(Wordy, wordy);
}

void StyleVocabulary::addPhrases(PhraseList list, QStringList phrases)
{
    std::stable_sort(phrases.begin(), phrases.end(),
                     [](const QString &a, const QString &b) { return a.size() > b.size(); });
    for (const QString &phrase : std::as_const(phrases))
        entryFor(phrase.section(u' ', 0, 0)).phrases[list].append(phrase);
}

StyleVocabulary::Entry &StyleVocabulary::entryFor(const QString &word)
{
    const quint32 hash = hashOf(word);
    quint32 slot = slotOf(hash);
    for (; m_slots[slot].entry >= 0; slot = (slot + 1) % slotCount) {
        Entry &entry = m_entries[size_t(m_slots[slot].entry)];
        if (entry.word == word)
            return entry;
    }
    m_slots[slot] = {hash, int(m_entries.size())};
    m_entries.emplace_back().word = word;
    return m_entries.back();
}

bool StyleVocabulary::isSameWord(QStringView word, const QString &listed)
{
    if (word.size() != listed.size())
        return false;
    for (qsizetype i = 0; i < word.size(); ++i) {
        if (foldToList(word[i].unicode()) != listed[i].unicode())
            return false;
    }
    return true;
}

QString StyleVocabulary::replacementFor(const QString &phrase) const
{
    const auto row = std::find_if(m_wordy.cbegin(), m_wordy.cend(),
                                  [&](const WordyPhrase &known) { return known.phrase == phrase; });
    return row == m_wordy.cend() ? QString() : row->replacement;
}

} // namespace vl::app
