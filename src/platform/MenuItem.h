#pragma once

#include <QString>

#include <memory>
#include <vector>

/// An entry of a menu, and the entries under it.
class MenuItem {
public:
    explicit MenuItem(const QString &text = {}) : text_(text) {}

    QString Text() const { return text_; }

    void Append(const QString &text) { items_.push_back(std::make_unique<MenuItem>(text)); }
    int Count() const { return static_cast<int>(items_.size()); }
    const MenuItem &Item(int index) const { return *items_[static_cast<size_t>(index)]; }

private:
    QString text_;
    std::vector<std::unique_ptr<MenuItem>> items_;
};
