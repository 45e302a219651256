#pragma once

#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

class QAction;
class QLineEdit;
class QWidget;

/// The standard editing entries of a menu, on the text field that has the focus.
class EditActions : public QObject {
    Q_OBJECT

public:
    explicit EditActions(QObject *parent);

    /// Takes an entry if it is one of them, by its name.
    bool Connect(QAction &action);
    /// Enables what can be done now.
    void Update();

private:
    using Possible = bool (*)(const QLineEdit &field);

    void TrackFocus(QWidget *now);

    std::vector<std::pair<QAction *, Possible>> actions_;
    QPointer<QLineEdit> field_;
};
