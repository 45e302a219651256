#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

/// An entry of a menu, and the entries under it.
class MenuItem : public QObject {
    Q_OBJECT

public:
    /// The last three stand in the application menu where the platform has one.
    enum class Kind { Plain, Apple, Prefs, Quit };
    struct Properties {
        QStringView name;
        /// With an ampersand before the mnemonic letter; "-" is a separator.
        QStringView text;
        /// A letter after "Cmd+", the platform's command key.
        QStringView keyboardShortcut = {};
        /// The command that it runs, empty for none of the window's.
        QStringView word = {};
        Kind kind = Kind::Plain;
        bool autoEnable = true;
    };

    explicit MenuItem(const QString &text = {}) : text_(text) {}
    explicit MenuItem(const Properties &properties);

    QString Text() const { return text_; }
    QString KeyboardShortcut() const { return keyboardShortcut_; }
    QString Word() const { return word_; }
    Kind ItemKind() const { return kind_; }

    /// With autoEnable it is enabled while somebody is connected to its Action, without it as it
    /// was told, disabled at first.
    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    MenuItem &Append(std::unique_ptr<MenuItem> item);
    void Append(const QString &text) { Append(std::make_unique<MenuItem>(text)); }
    int Count() const { return static_cast<int>(items_.size()); }
    MenuItem &Item(int index) { return *items_[static_cast<size_t>(index)]; }
    const MenuItem &Item(int index) const { return *items_[static_cast<size_t>(index)]; }
    /// The entry of that name under this one. Without it the program ends, and says what is
    /// missing.
    MenuItem &Child(QStringView name);

Q_SIGNALS:
    /// The user has chosen the entry.
    void Action();
    /// For the view: how it shows has changed.
    void Updated();

private:
    QString text_;
    QString keyboardShortcut_;
    QString word_;
    Kind kind_ = Kind::Plain;
    bool autoEnable_ = true;
    bool enabled_ = false;
    bool visible_ = true;
    std::vector<std::unique_ptr<MenuItem>> items_;
};
