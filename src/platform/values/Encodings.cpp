#include "platform/values/Encodings.h"

#include <algorithm>
#include <memory>
#include <unicode/translit.h>
#include <unicode/ucnv.h>
#include <unicode/uniset.h>

namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

/// Terminates the program on an ICU error: the code page is built into ICU, and no correct output
/// is possible without it.
void AbortOnFailure(UErrorCode status) {
    if (U_FAILURE(status)) {
        qFatal("Code page 1252: %s", u_errorName(status));
    }
}

Converter OpenConverter() {
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open("windows-1252", &status), &ucnv_close);
    ucnv_setSubstChars(converter.get(), "?", 1, &status);
    AbortOnFailure(status);
    return converter;
}

using Transliterator = std::unique_ptr<icu::Transliterator>;

/// Returns a transliterator to ASCII for the characters that the converter can't represent; null on
/// failure.
Transliterator OpenTransliterator(const UConverter *converter) {
    UErrorCode status = U_ZERO_ERROR;
    Transliterator toAscii(
        icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, status));
    auto missing = std::make_unique<icu::UnicodeSet>();
    ucnv_getUnicodeSet(converter, missing->toUSet(), UCNV_ROUNDTRIP_SET, &status);
    if (!toAscii || U_FAILURE(status)) {
        // Without ICU's data files. Characters missing in the code page become question marks.
        return nullptr;
    }
    missing->complement();
    toAscii->adoptFilter(missing.release());
    return toAscii;
}

/// Returns the end of the chunk that starts at begin: a few whole words. Transliterating a long
/// text in one call takes quadratic time, because each replacement moves all characters after it.
qsizetype ChunkEnd(QStringView text, qsizetype begin) {
    constexpr qsizetype minChunkSize = 64;
    qsizetype end = std::min(begin + minChunkSize, text.size());
    while (end < text.size() && text[end - 1] > u' ' && text[end - 1] != u';') {
        ++end;
    }
    return end;
}

/// Returns true for nearly every text. The code page equals Latin-1 except for 0x80 to 0x9f, which
/// are control characters in Latin-1.
bool IsLatin1(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return character < QChar(0x80) || (character >= QChar(0xa0) && character <= QChar(0xff));
    });
}

QByteArray Convert(QStringView text, const icu::Transliterator *toAscii, UConverter *converter) {
    icu::UnicodeString unicode(text.utf16(), static_cast<int32_t>(text.size()));
    if (toAscii != nullptr) {
        toAscii->transliterate(unicode);
    }
    UErrorCode status = U_ZERO_ERROR;
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(unicode.length(), 1), Qt::Uninitialized);
    bytes.resize(ucnv_fromUChars(converter, bytes.data(), static_cast<int32_t>(bytes.size()),
                                 unicode.getBuffer(), unicode.length(), &status));
    AbortOnFailure(status);
    return bytes;
}

} // namespace

QByteArray Encodings::WindowsANSI(const QString &text) {
    if (IsLatin1(text)) {
        return text.toLatin1();
    }
    // A letter followed by a combining accent is one character in the code page.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const Converter converter = OpenConverter();
    const Transliterator toAscii = OpenTransliterator(converter.get());
    QByteArray bytes;
    for (qsizetype begin = 0, end = 0; begin < composed.size(); begin = end) {
        end = ChunkEnd(composed, begin);
        const QStringView chunk = QStringView(composed).mid(begin, end - begin);
        bytes +=
            IsLatin1(chunk) ? chunk.toLatin1() : Convert(chunk, toAscii.get(), converter.get());
    }
    return bytes;
}
