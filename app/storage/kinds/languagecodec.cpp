#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/language.h"

namespace vl::app {

using core::LanguageData;
using core::LexiconEntry;

template<>
struct JsonRecord<LexiconEntry>
{
    static constexpr auto fields = sortedFields<LexiconEntry>({
        member<LexiconEntry, &LexiconEntry::gloss>("gloss"),
        member<LexiconEntry, &LexiconEntry::notes>("notes"),
        member<LexiconEntry, &LexiconEntry::partOfSpeech>("partOfSpeech"),
        member<LexiconEntry, &LexiconEntry::word>("word"),
    });
};

static constexpr auto fields = sortedFields<LanguageData>({
    member<LanguageData, &LanguageData::consonants>("consonants"),
    member<LanguageData, &LanguageData::grammarNotes>("grammarNotes"),
    member<LanguageData, &LanguageData::lexicon>("lexicon"),
    member<LanguageData, &LanguageData::maxSyllables>("maxSyllables"),
    member<LanguageData, &LanguageData::minSyllables>("minSyllables"),
    member<LanguageData, &LanguageData::name>("name"),
    member<LanguageData, &LanguageData::patterns>("patterns"),
    member<LanguageData, &LanguageData::vowels>("vowels"),
});

std::unique_ptr<core::ContentObject> readLanguage(const core::ContentId &id, const JsonValue &json)
{
    return readDataOf<core::Language>(id, json, fields);
}

bool writeLanguage(JsonWriter &json, const core::ContentObject &object)
{
    return writeDataOf<core::Language>(json, object, fields);
}

} // namespace vl::app
