#include "app/text/chapterheading.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <algorithm>
#include <array>

namespace vl::app {

namespace {

constexpr qsizetype longestHeading = 200;

struct Keyword
{
    const char16_t *word;
    HeadingRank rank;
};

// Lower case, without accents; several languages share a word.
constexpr std::array keywords{
    Keyword{u"volume", HeadingRank::Volume},     Keyword{u"vol", HeadingRank::Volume},
    Keyword{u"tome", HeadingRank::Volume},       Keyword{u"band", HeadingRank::Volume},
    Keyword{u"tomo", HeadingRank::Volume},       Keyword{u"book", HeadingRank::Book},
    Keyword{u"buch", HeadingRank::Book},         Keyword{u"livre", HeadingRank::Book},
    Keyword{u"libro", HeadingRank::Book},        Keyword{u"livro", HeadingRank::Book},
    Keyword{u"part", HeadingRank::Part},         Keyword{u"teil", HeadingRank::Part},
    Keyword{u"theil", HeadingRank::Part},        Keyword{u"partie", HeadingRank::Part},
    Keyword{u"parte", HeadingRank::Part},        Keyword{u"act", HeadingRank::Part},
    Keyword{u"akt", HeadingRank::Part},          Keyword{u"aufzug", HeadingRank::Part},
    Keyword{u"chapter", HeadingRank::Chapter},   Keyword{u"chap", HeadingRank::Chapter},
    Keyword{u"kapitel", HeadingRank::Chapter},   Keyword{u"capitel", HeadingRank::Chapter},
    Keyword{u"chapitre", HeadingRank::Chapter},  Keyword{u"capitulo", HeadingRank::Chapter},
    Keyword{u"capitolo", HeadingRank::Chapter},  Keyword{u"canto", HeadingRank::Chapter},
    Keyword{u"stave", HeadingRank::Chapter},     Keyword{u"letter", HeadingRank::Chapter},
    Keyword{u"scene", HeadingRank::Scene},       Keyword{u"szene", HeadingRank::Scene},
    Keyword{u"auftritt", HeadingRank::Scene},    Keyword{u"prologue", HeadingRank::Matter},
    Keyword{u"prolog", HeadingRank::Matter},     Keyword{u"prologo", HeadingRank::Matter},
    Keyword{u"epilogue", HeadingRank::Matter},   Keyword{u"epilog", HeadingRank::Matter},
    Keyword{u"epilogo", HeadingRank::Matter},    Keyword{u"preface", HeadingRank::Matter},
    Keyword{u"foreword", HeadingRank::Matter},   Keyword{u"introduction", HeadingRank::Matter},
    Keyword{u"afterword", HeadingRank::Matter},  Keyword{u"interlude", HeadingRank::Matter},
    Keyword{u"vorwort", HeadingRank::Matter},    Keyword{u"nachwort", HeadingRank::Matter},
    Keyword{u"einleitung", HeadingRank::Matter}, Keyword{u"prefacio", HeadingRank::Matter},
    Keyword{u"appendix", HeadingRank::Matter},   Keyword{u"postscript", HeadingRank::Matter},
};

struct NumberWord
{
    const char16_t *word;
    int value;
};

// Cardinal and ordinal number words up to twenty, and the tens, with which "twenty-one" begins.
constexpr std::array numberWords{
    NumberWord{u"one", 1},         NumberWord{u"two", 2},          NumberWord{u"three", 3},
    NumberWord{u"four", 4},        NumberWord{u"five", 5},         NumberWord{u"six", 6},
    NumberWord{u"seven", 7},       NumberWord{u"eight", 8},        NumberWord{u"nine", 9},
    NumberWord{u"ten", 10},        NumberWord{u"eleven", 11},      NumberWord{u"twelve", 12},
    NumberWord{u"thirteen", 13},   NumberWord{u"fourteen", 14},    NumberWord{u"fifteen", 15},
    NumberWord{u"sixteen", 16},    NumberWord{u"seventeen", 17},   NumberWord{u"eighteen", 18},
    NumberWord{u"nineteen", 19},   NumberWord{u"twenty", 20},      NumberWord{u"thirty", 30},
    NumberWord{u"forty", 40},      NumberWord{u"fifty", 50},       NumberWord{u"sixty", 60},
    NumberWord{u"seventy", 70},    NumberWord{u"eighty", 80},      NumberWord{u"ninety", 90},
    NumberWord{u"first", 1},       NumberWord{u"second", 2},       NumberWord{u"third", 3},
    NumberWord{u"fourth", 4},      NumberWord{u"fifth", 5},        NumberWord{u"sixth", 6},
    NumberWord{u"seventh", 7},     NumberWord{u"eighth", 8},       NumberWord{u"ninth", 9},
    NumberWord{u"tenth", 10},      NumberWord{u"eleventh", 11},    NumberWord{u"twelfth", 12},
    NumberWord{u"thirteenth", 13}, NumberWord{u"fourteenth", 14},  NumberWord{u"fifteenth", 15},
    NumberWord{u"sixteenth", 16},  NumberWord{u"seventeenth", 17}, NumberWord{u"eighteenth", 18},
    NumberWord{u"nineteenth", 19}, NumberWord{u"twentieth", 20},   NumberWord{u"last", 99},
    NumberWord{u"eins", 1},        NumberWord{u"zwei", 2},         NumberWord{u"drei", 3},
    NumberWord{u"vier", 4},        NumberWord{u"funf", 5},         NumberWord{u"sechs", 6},
    NumberWord{u"sieben", 7},      NumberWord{u"acht", 8},         NumberWord{u"neun", 9},
    NumberWord{u"zehn", 10},       NumberWord{u"elf", 11},         NumberWord{u"zwolf", 12},
    NumberWord{u"erst", 1},        NumberWord{u"zweit", 2},        NumberWord{u"dritt", 3},
    NumberWord{u"viert", 4},       NumberWord{u"funft", 5},        NumberWord{u"sechst", 6},
    NumberWord{u"siebent", 7},     NumberWord{u"siebt", 7},        NumberWord{u"acht", 8},
    NumberWord{u"neunt", 9},       NumberWord{u"zehnt", 10},       NumberWord{u"elft", 11},
    NumberWord{u"zwolft", 12},     NumberWord{u"letzt", 99},       NumberWord{u"premier", 1},
    NumberWord{u"premiere", 1},    NumberWord{u"deuxieme", 2},     NumberWord{u"seconde", 2},
    NumberWord{u"troisieme", 3},   NumberWord{u"quatrieme", 4},    NumberWord{u"cinquieme", 5},
    NumberWord{u"sixieme", 6},     NumberWord{u"septieme", 7},     NumberWord{u"huitieme", 8},
    NumberWord{u"un", 1},          NumberWord{u"deux", 2},         NumberWord{u"trois", 3},
    NumberWord{u"quatre", 4},      NumberWord{u"cinq", 5},         NumberWord{u"primero", 1},
    NumberWord{u"primera", 1},     NumberWord{u"segundo", 2},      NumberWord{u"segunda", 2},
    NumberWord{u"tercero", 3},     NumberWord{u"tercera", 3},      NumberWord{u"cuarto", 4},
    NumberWord{u"cuarta", 4},      NumberWord{u"quinto", 5},       NumberWord{u"quinta", 5},
    NumberWord{u"uno", 1},         NumberWord{u"dos", 2},          NumberWord{u"tres", 3},
    NumberWord{u"primo", 1},       NumberWord{u"prima", 1},        NumberWord{u"secondo", 2},
    NumberWord{u"seconda", 2},     NumberWord{u"terzo", 3},        NumberWord{u"terza", 3},
    NumberWord{u"primeiro", 1},    NumberWord{u"primeira", 1},     NumberWord{u"terceira", 3},
};

/// Lower case without accents, for looking words up.
QString folded(QStringView word)
{
    QString plain;
    for (const QChar c : word.toString().normalized(QString::NormalizationForm_D)) {
        if (c.category() != QChar::Mark_NonSpacing)
            plain += c.toLower();
    }
    return plain;
}

std::optional<HeadingRank> rankOfWord(const QString &word)
{
    static const QHash<QString, HeadingRank> table = [] {
        QHash<QString, HeadingRank> ranks;
        for (const Keyword &keyword : keywords)
            ranks.insert(QString::fromUtf16(keyword.word), keyword.rank);
        return ranks;
    }();
    const auto found = table.constFind(word);
    return found == table.constEnd() ? std::nullopt : std::optional(*found);
}

int simpleNumberWord(const QString &word)
{
    static const QHash<QString, int> table = [] {
        QHash<QString, int> values;
        for (const NumberWord &entry : numberWords)
            values.insert(QString::fromUtf16(entry.word), entry.value);
        return values;
    }();
    return table.value(word);
}

int numberWord(const QString &word)
{
    if (const int value = simpleNumberWord(word); value > 0)
        return value;
    const qsizetype hyphen = word.indexOf(QLatin1Char('-'));
    if (hyphen > 0) {
        const int tens = simpleNumberWord(word.left(hyphen));
        const int ones = simpleNumberWord(word.mid(hyphen + 1));
        return tens >= 20 && tens % 10 == 0 && ones > 0 && ones < 10 ? tens + ones : 0;
    }
    for (const char *ending : {"er", "es", "en", "e", "s"}) { // "Erster Teil", "Zweites Buch"
        const QLatin1String tail(ending);
        if (word.endsWith(tail)) {
            if (const int value = simpleNumberWord(word.chopped(tail.size())); value > 0)
                return value;
        }
    }
    return 0;
}

/// The value of a Roman numeral in capitals and its usual form, up to 399; 0 for anything else.
int romanValue(QStringView text)
{
    struct Digit
    {
        const char *text;
        int value;
    };
    static constexpr std::array digits{Digit{"C", 100}, Digit{"XC", 90}, Digit{"L", 50},
                                       Digit{"XL", 40}, Digit{"X", 10},  Digit{"IX", 9},
                                       Digit{"V", 5},   Digit{"IV", 4},  Digit{"I", 1}};
    int value = 0;
    for (const Digit &digit : digits) {
        const bool mayRepeat = digit.value == 100 || digit.value == 10 || digit.value == 1;
        int count = 0;
        while (text.startsWith(QLatin1String(digit.text)) && count < (mayRepeat ? 4 : 1)) {
            value += digit.value;
            text = text.mid(qsizetype(qstrlen(digit.text)));
            ++count;
        }
    }
    return text.isEmpty() ? value : 0;
}

struct Number
{
    int value = 0; ///< 0 for no number
    bool isRoman = false;
};

Number readNumber(QStringView word, bool allowsWords)
{
    const bool isDigits =
        !word.isEmpty() && word.size() <= 4 && std::all_of(word.cbegin(), word.cend(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    if (isDigits)
        return {word.toInt(), false};
    const QString upper = allowsWords ? word.toString().toUpper() : word.toString();
    if (const int roman = romanValue(upper); roman > 0)
        return {roman, true};
    return {allowsWords ? numberWord(folded(word)) : 0, false};
}

bool isSeparator(QChar c)
{
    return QStringView(u".:;,)]-\u2013\u2014").contains(c);
}

/// A word of a heading: its core, and whether punctuation follows that parts it from a title.
struct Token
{
    QStringView core;
    bool endsWithSeparator = false;
};

QList<Token> tokensOf(QStringView line)
{
    QList<Token> tokens;
    for (QStringView word : line.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        // "ONE:1805" and "I—The": the number ends at the separator, the title follows unparted
        qsizetype end = 0;
        while (end < word.size()
               && (!isSeparator(word[end])
                   || (word[end] == QLatin1Char('-') && end > 0 && end + 1 < word.size()
                       && word[end - 1].isLetter() && word[end + 1].isLetter())))
            ++end;
        qsizetype next = end;
        while (next < word.size() && isSeparator(word[next]))
            ++next;
        tokens.append({word.left(end), next > end});
        if (next < word.size())
            tokens.append({word.mid(next), false});
        if (tokens.size() > 5)
            break; // a heading has shown itself by then
    }
    return tokens;
}

bool isCapital(QStringView word)
{
    return !word.isEmpty()
           && (word.front().isUpper() || word.front().isDigit()
               || !word.front().isLetterOrNumber());
}

/// Whether what follows the number at `at` can be a title, or nothing follows.
bool isEndOrTitle(QStringView line, const QList<Token> &tokens, qsizetype at)
{
    if (at + 1 >= tokens.size() || tokens[at].endsWithSeparator)
        return true;
    if (tokens[at + 1].core.isEmpty())
        return true; // a dash on its own
    return isCapital(tokens[at + 1].core) && !line.endsWith(QLatin1Char(','))
           && (tokens.size() <= 5 || !line.endsWith(QLatin1Char('.')));
}

/// "CHAPTER IV", "Part the Second", "Epilogue"
std::optional<ChapterHeading> keywordFirst(QStringView line, const QList<Token> &tokens)
{
    const auto rank = rankOfWord(folded(tokens[0].core));
    if (!rank)
        return std::nullopt;
    ChapterHeading heading{*rank, 0, false, tokens.size() > 1};
    qsizetype at = 1;
    if (at < tokens.size() && folded(tokens[at].core) == QLatin1String("the"))
        ++at;
    if (at < tokens.size()) {
        const Number number = readNumber(tokens[at].core, true);
        if (number.value > 0 && isEndOrTitle(line, tokens, at)) {
            heading.number = number.value;
            heading.isRoman = number.isRoman;
            heading.hasTitle = at + 1 < tokens.size();
            return heading;
        }
    }
    if (*rank != HeadingRank::Matter)
        return std::nullopt;
    if (tokens.size() == 1 || tokens[0].endsWithSeparator || isInCapitals(line))
        return heading;
    return std::nullopt;
}

/// "First Epilogue", "Erstes Kapitel", "Première partie"
std::optional<ChapterHeading> ordinalFirst(QStringView line, const QList<Token> &tokens)
{
    const qsizetype at = folded(tokens[0].core) == QLatin1String("the") ? 1 : 0;
    if (tokens.size() < at + 2 || tokens[at].core.isEmpty())
        return std::nullopt;
    const auto rank = rankOfWord(folded(tokens[at + 1].core));
    if (!rank)
        return std::nullopt;
    const QStringView word = tokens[at].core;
    Number number{word.front().isDigit() ? 0 : numberWord(folded(word)), false};
    if (number.value == 0 && tokens[at].endsWithSeparator)
        number = readNumber(word, false); // "1. Kapitel", "II. Teil"
    const bool mayFollow = at + 2 >= tokens.size() || tokens[at + 1].endsWithSeparator
                           || tokens[at + 2].core.isEmpty() || isInCapitals(line);
    if (number.value == 0 || !mayFollow)
        return std::nullopt;
    return ChapterHeading{*rank, number.value, number.isRoman, tokens.size() > at + 2};
}

/// "IV", "IV.", "12." and "I. A SCANDAL IN BOHEMIA"
std::optional<ChapterHeading> numeralAlone(QStringView line, const QList<Token> &tokens)
{
    const Number number = readNumber(tokens[0].core, false);
    if (number.value == 0)
        return std::nullopt;
    if (tokens.size() == 1) {
        const bool isClean =
            line.size() == tokens[0].core.size()
            || (line.size() == tokens[0].core.size() + 1 && line.endsWith(QLatin1Char('.')));
        return isClean && number.value < 400 ? std::optional(
                   ChapterHeading{HeadingRank::Numeral, number.value, number.isRoman, false})
                                             : std::nullopt;
    }
    const QStringView title = line.mid(line.indexOf(QLatin1Char(' ')) + 1);
    if (!number.isRoman || !tokens[0].endsWithSeparator || !isInCapitals(title))
        return std::nullopt;
    return ChapterHeading{HeadingRank::Numeral, number.value, true, true};
}

} // namespace

bool isInCapitals(QStringView text)
{
    bool hasCapital = false;
    for (const QChar c : text) {
        if (c.isLower())
            return false;
        hasCapital = hasCapital || c.isUpper();
    }
    return hasCapital;
}

std::optional<QString> withoutLetterSpacing(QStringView line)
{
    line = line.trimmed();
    if (line.size() < 7 || line.size() > longestHeading)
        return std::nullopt;
    QString joined;
    qsizetype letters = 0;
    qsizetype blanks = 0; // since the last character
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == QLatin1Char(' ')) {
            ++blanks;
            continue;
        }
        const bool isLetter = line[i].isLetterOrNumber();
        if (isLetter && i > 0 && blanks == 0 && line[i - 1].isLetterOrNumber())
            return std::nullopt; // two letters touch
        if (blanks > 1)
            joined += QLatin1Char(' ');
        joined += line[i];
        letters += isLetter ? 1 : 0;
        blanks = 0;
    }
    if (letters < 4)
        return std::nullopt;
    return joined;
}

std::optional<ChapterHeading> readChapterHeading(QStringView line)
{
    line = line.trimmed();
    if (line.isEmpty() || line.size() > longestHeading || !line.front().isLetterOrNumber()
        || line.front().isLower())
        return std::nullopt;
    const QList<Token> tokens = tokensOf(line);
    if (tokens.isEmpty() || tokens[0].core.isEmpty() || tokens[0].core.size() > 24)
        return std::nullopt;
    if (auto heading = keywordFirst(line, tokens))
        return heading;
    if (auto heading = ordinalFirst(line, tokens))
        return heading;
    return numeralAlone(line, tokens);
}

} // namespace vl::app
