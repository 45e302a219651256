#include "platform/Encodings.h"

#include <algorithm>
#include <memory>
#include <unicode/translit.h>
#include <unicode/ucnv.h>
#include <unicode/uniset.h>

namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter OpenConverter() {
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open("windows-1252", &status), &ucnv_close);
    ucnv_setSubstChars(converter.get(), "?", 1, &status);
    Q_ASSERT(U_SUCCESS(status));
    return converter;
}

/// Puts plain letters in the place of the characters that the converter lacks.
void Transliterate(icu::UnicodeString &text, const UConverter *converter) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Transliterator> toPlainLetters(
        icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, status));
    auto lacking = std::make_unique<icu::UnicodeSet>();
    ucnv_getUnicodeSet(converter, lacking->toUSet(), UCNV_ROUNDTRIP_SET, &status);
    if (toPlainLetters && U_SUCCESS(status)) {
        lacking->complement();
        toPlainLetters->adoptFilter(lacking.release());
        toPlainLetters->transliterate(text);
    }
}

/// Nearly every text: the code page has all of Latin-1 in its place, but for control characters.
bool IsLatin1(const QString &text) {
    return std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter < QChar(0x80) || (letter >= QChar(0xa0) && letter <= QChar(0xff));
    });
}

} // namespace

QByteArray Encodings::WindowsANSI(const QString &text) {
    // What is typed as a letter and its accent is one character in the code page.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    if (IsLatin1(composed)) {
        return composed.toLatin1();
    }
    icu::UnicodeString unicode(composed.utf16(), static_cast<int32_t>(composed.size()));
    const Converter converter = OpenConverter();
    Transliterate(unicode, converter.get());
    UErrorCode status = U_ZERO_ERROR;
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(unicode.length(), 1), Qt::Uninitialized);
    bytes.resize(ucnv_fromUChars(converter.get(), bytes.data(), static_cast<int32_t>(bytes.size()),
                                 unicode.getBuffer(), unicode.length(), &status));
    return bytes;
}
