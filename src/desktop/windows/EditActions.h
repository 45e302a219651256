#pragma once

#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

class QAction;
class QLineEdit;
class QWidget;

/// The standard actions of an edit menu, for the text field that has the focus.
class EditActions : public QObject {
    Q_OBJECT

public:
    explicit EditActions(QObject *parent);

    /// Connects the action if its name is that of a standard action; returns false otherwise.
    bool Connect(QAction &action);
    /// Enables the actions that are possible now.
    void Update();

private:
    using Possible = bool (*)(const QLineEdit &field);

    void TrackFocus(QWidget *now);

    std::vector<std::pair<QAction *, Possible>> actions_;
    QPointer<QLineEdit> field_;
};
