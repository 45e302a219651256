#include "platform/values/Encodings.h"

#include <algorithm>
#include <memory>
#include <unicode/translit.h>
#include <unicode/ucnv.h>
#include <unicode/uniset.h>

namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

/// The code page is built into the library: without it the program can't go on rightly.
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

/// What puts plain letters in the place of the characters that the converter lacks.
Transliterator OpenTransliterator(const UConverter *converter) {
    UErrorCode status = U_ZERO_ERROR;
    Transliterator toAscii(
        icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, status));
    auto missing = std::make_unique<icu::UnicodeSet>();
    ucnv_getUnicodeSet(converter, missing->toUSet(), UCNV_ROUNDTRIP_SET, &status);
    if (!toAscii || U_FAILURE(status)) {
        return nullptr; // Without its data files: what the code page lacks is a question mark then.
    }
    missing->complement();
    toAscii->adoptFilter(missing.release());
    return toAscii;
}

/// The end of the piece that begins here: a few words, whole. A long text costs by the square of
/// its length, for each letter put in moves all after it.
qsizetype EndOfPiece(QStringView text, qsizetype begin) {
    constexpr qsizetype fewWords = 64;
    qsizetype end = std::min(begin + fewWords, text.size());
    while (end < text.size() && text[end - 1] > u' ' && text[end - 1] != u';') {
        ++end;
    }
    return end;
}

/// Nearly every text: the code page has all of Latin-1 in its place, but for control characters.
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
    // What is typed as a letter and its accent is one character in the code page.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const Converter converter = OpenConverter();
    const Transliterator toAscii = OpenTransliterator(converter.get());
    QByteArray bytes;
    for (qsizetype begin = 0, end = 0; begin < composed.size(); begin = end) {
        end = EndOfPiece(composed, begin);
        const QStringView piece = QStringView(composed).mid(begin, end - begin);
        bytes +=
            IsLatin1(piece) ? piece.toLatin1() : Convert(piece, toAscii.get(), converter.get());
    }
    return bytes;
}
