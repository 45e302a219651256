#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

/// A menu item and its submenu.
class MenuItem : public QObject {
    Q_OBJECT

public:
    /// On a platform with an application menu, the last three are moved there.
    enum class Kind { Plain, Apple, Prefs, Quit };
    struct Properties {
        QStringView name;
        /// An ampersand precedes the mnemonic character; "-" is a separator.
        QStringView text;
        /// "Cmd+", for the platform's command key, followed by a character.
        QStringView keyboardShortcut = {};
        /// The window command that the item runs, empty if it runs none.
        QStringView command = {};
        Kind kind = Kind::Plain;
        bool autoEnable = true;
    };

    explicit MenuItem(const QString &text = {}) : text_(text) {}
    explicit MenuItem(const Properties &properties);

    QString Text() const { return text_; }
    QString KeyboardShortcut() const { return keyboardShortcut_; }
    QString Command() const { return command_; }
    Kind ItemKind() const { return kind_; }

    /// With autoEnable, returns whether a slot is connected to Action; otherwise the value set by
    /// SetEnabled, false by default.
    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    MenuItem &Append(std::unique_ptr<MenuItem> item);
    void Append(const QString &text) { Append(std::make_unique<MenuItem>(text)); }
    int Count() const { return static_cast<int>(items_.size()); }
    MenuItem &Item(int index) { return *items_[static_cast<size_t>(index)]; }
    const MenuItem &Item(int index) const { return *items_[static_cast<size_t>(index)]; }
    /// Returns the direct child with the given object name. Terminates the program with a message
    /// if there is none.
    MenuItem &Child(QStringView name);

Q_SIGNALS:
    /// Emitted when the user has chosen the item.
    void Action();
    /// For the view: emitted when the enabled or visible state was set.
    void Updated();

private:
    QString text_;
    QString keyboardShortcut_;
    QString command_;
    Kind kind_ = Kind::Plain;
    bool autoEnable_ = true;
    bool enabled_ = false;
    bool visible_ = true;
    std::vector<std::unique_ptr<MenuItem>> items_;
};
