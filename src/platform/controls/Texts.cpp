#include "platform/controls/Texts.h"

void Texts::Add(QStringView text) {
    letters_.append(text.utf16(), static_cast<size_t>(text.size()));
    ends_.push_back(letters_.size());
}

void Texts::Set(size_t place, QStringView text) {
    const auto begin = static_cast<size_t>(Begin(place));
    const size_t before = letters_.size();
    letters_.replace(begin, ends_[place] - begin, text.utf16(), static_cast<size_t>(text.size()));
    for (; place < ends_.size(); ++place) {
        ends_[place] += letters_.size() - before;
    }
}

void Texts::SetCount(size_t count) {
    if (count < Count()) {
        letters_.resize(static_cast<size_t>(Begin(count)));
    }
    ends_.resize(count, letters_.size());
}
