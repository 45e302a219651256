#pragma once

#include <QString>

#include <initializer_list>
#include <string>
#include <vector>

/// Many texts, counted from 0, most of them short and few of them ever changed. They lie in one
/// piece: twenty thousand are a few allocations to make, and two to let go.
class TextColumn {
public:
    TextColumn() = default;
    TextColumn(std::initializer_list<QStringView> texts) {
        for (const QStringView text : texts) {
            Add(text);
        }
    }

    int Count() const { return static_cast<int>(ends_.size()); }
    /// The text in its place, until one is added or changed.
    QStringView At(int index) const {
        return QStringView(text_).sliced(Begin(index), End(index) - Begin(index));
    }
    /// The letters of the texts from one place up to another, which is not among them.
    qsizetype LengthOf(int index, int end) const { return Begin(end) - Begin(index); }

    void Add(QStringView text);
    /// Takes as long as there are texts behind the place.
    void Set(int index, QStringView text);
    /// Lets go of the last ones, or adds empty ones.
    void SetCount(int count);

private:
    qsizetype Begin(int index) const { return index == 0 ? 0 : End(index - 1); }
    qsizetype End(int index) const { return ends_[static_cast<size_t>(index)]; }

    std::u16string text_;
    /// Where each text ends, and the next begins.
    std::vector<qsizetype> ends_;
};
