#include "collation.h"

#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <memory>
#include <vector>

namespace collation {

namespace {

icu::UnicodeString toIcu(const wxString& text) {
    const wxScopedCharBuffer utf8 = text.utf8_str();
    return icu::UnicodeString::fromUTF8(icu::StringPiece(utf8.data(), static_cast<int32_t>(utf8.length())));
}

wxString fromIcu(const icu::UnicodeString& text) {
    std::string utf8;
    text.toUTF8String(utf8);
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

// One collator for the program's life: building it reads ICU's Czech rules. Comparing with
// it does not change it. When ICU cannot give one (a broken installation), texts fall back
// to a comparison without regard to case.
const icu::Collator* czech() {
    static const std::unique_ptr<icu::Collator> collator = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> c(icu::Collator::createInstance(icu::Locale("cs", "CZ"), status));
        if (U_FAILURE(status)) c.reset();
        return c;
    }();
    return collator.get();
}

}  // namespace

int czechCompare(const wxString& a, const wxString& b) {
    const icu::Collator* collator = czech();
    if (!collator) return a.CmpNoCase(b);
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result = collator->compare(toIcu(a), toIcu(b), status);
    if (U_FAILURE(status)) return a.CmpNoCase(b);
    return result == UCOL_LESS ? -1 : result == UCOL_GREATER ? 1 : 0;
}

std::string czechSortKey(const wxString& text) {
    const icu::Collator* collator = czech();
    if (!collator) return std::string(text.Lower().utf8_str());
    const icu::UnicodeString source = toIcu(text);
    std::vector<uint8_t> key(64 + 4 * static_cast<size_t>(source.length()));
    int32_t length = collator->getSortKey(source, key.data(), static_cast<int32_t>(key.size()));
    if (length > static_cast<int32_t>(key.size())) {
        key.resize(static_cast<size_t>(length));
        length = collator->getSortKey(source, key.data(), length);
    }
    // The key ends with a zero byte that only terminates it.
    if (length > 0) --length;
    return std::string(reinterpret_cast<const char*>(key.data()), static_cast<size_t>(length));
}

wxString searchFold(const wxString& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) return text.Lower();
    const icu::UnicodeString decomposed = nfd->normalize(toIcu(text), status);
    if (U_FAILURE(status)) return text.Lower();
    icu::UnicodeString folded;
    for (int32_t i = 0; i < decomposed.length();) {
        const UChar32 c = decomposed.char32At(i);
        if (u_charType(c) != U_NON_SPACING_MARK) folded.append(c);
        i += U16_LENGTH(c);
    }
    return fromIcu(folded.foldCase());
}

bool containsFolded(const wxString& text, const wxString& needle) {
    if (needle.empty()) return true;
    return searchFold(text).Find(searchFold(needle)) != wxNOT_FOUND;
}

}  // namespace collation
