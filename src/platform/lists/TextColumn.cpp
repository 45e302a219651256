#include "platform/lists/TextColumn.h"

void TextColumn::Add(QStringView text) {
    letters_.append(text.utf16(), static_cast<size_t>(text.size()));
    ends_.push_back(static_cast<qsizetype>(letters_.size()));
}

void TextColumn::Set(int place, QStringView text) {
    const qsizetype before = End(place) - Begin(place);
    letters_.replace(static_cast<size_t>(Begin(place)), static_cast<size_t>(before), text.utf16(),
                     static_cast<size_t>(text.size()));
    for (auto end = ends_.begin() + place; end != ends_.end(); ++end) {
        *end += text.size() - before;
    }
}

void TextColumn::SetCount(int count) {
    if (count < Count()) {
        letters_.resize(static_cast<size_t>(Begin(count)));
    }
    ends_.resize(static_cast<size_t>(count), static_cast<qsizetype>(letters_.size()));
}
