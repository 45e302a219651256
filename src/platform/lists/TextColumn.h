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
    QStringView At(int place) const {
        return QStringView(letters_).sliced(Begin(place), End(place) - Begin(place));
    }
    /// The letters of the texts from one place up to another, which is not among them.
    qsizetype LengthOf(int place, int end) const { return Begin(end) - Begin(place); }

    void Add(QStringView text);
    /// Takes as long as there are texts behind the place.
    void Set(int place, QStringView text);
    /// Lets go of the last ones, or adds empty ones.
    void SetCount(int count);

private:
    qsizetype Begin(int place) const { return place == 0 ? 0 : End(place - 1); }
    qsizetype End(int place) const { return ends_[static_cast<size_t>(place)]; }

    std::u16string letters_;
    /// Where each text ends, and the next begins.
    std::vector<qsizetype> ends_;
};
