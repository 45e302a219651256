#include "platform/lists/TextColumn.h"

void TextColumn::Add(QStringView text) {
    text_.append(text.utf16(), static_cast<size_t>(text.size()));
    ends_.push_back(static_cast<qsizetype>(text_.size()));
}

void TextColumn::Set(int index, QStringView text) {
    const qsizetype oldSize = End(index) - Begin(index);
    text_.replace(static_cast<size_t>(Begin(index)), static_cast<size_t>(oldSize), text.utf16(),
                  static_cast<size_t>(text.size()));
    for (auto end = ends_.begin() + index; end != ends_.end(); ++end) {
        *end += text.size() - oldSize;
    }
}

void TextColumn::SetCount(int count) {
    if (count < Count()) {
        text_.resize(static_cast<size_t>(Begin(count)));
    }
    ends_.resize(static_cast<size_t>(count), static_cast<qsizetype>(text_.size()));
}
