#include "desktop/windows/EditActions.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>

#include <algorithm>
#include <iterator>

namespace {

struct StandardEdit {
    QStringView name;
    bool (*isPossible)(const QLineEdit &field);
    void (*run)(QLineEdit &field);
};

bool HasSelection(const QLineEdit &field) {
    return field.hasSelectedText();
}

const StandardEdit standardEdits[] = {
    {u"EditUndo", [](const QLineEdit &field) { return field.isUndoAvailable(); },
     [](QLineEdit &field) { field.undo(); }},
    {u"EditCut", HasSelection, [](QLineEdit &field) { field.cut(); }},
    {u"EditCopy", HasSelection, [](QLineEdit &field) { field.copy(); }},
    {u"EditPaste", [](const QLineEdit &) { return !QApplication::clipboard()->text().isEmpty(); },
     [](QLineEdit &field) { field.paste(); }},
    {u"EditClear", HasSelection, [](QLineEdit &field) { field.del(); }},
    {u"EditSelectAll", [](const QLineEdit &field) { return !field.text().isEmpty(); },
     [](QLineEdit &field) { field.selectAll(); }},
};

} // namespace

EditActions::EditActions(QObject *parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*before*/, QWidget *now) { TrackFocus(now); });
}

bool EditActions::Connect(QAction &action) {
    const auto edit = std::find_if(
        std::begin(standardEdits), std::end(standardEdits),
        [&action](const StandardEdit &each) { return action.objectName() == each.name; });
    if (edit == std::end(standardEdits)) {
        return false;
    }
    actions_.emplace_back(&action, edit->isPossible);
    connect(&action, &QAction::triggered, this, [this, run = edit->run] {
        if (field_) {
            run(*field_);
        }
    });
    return true;
}

void EditActions::Update() {
    for (const auto &[action, isPossible] : actions_) {
        action->setEnabled(field_ && isPossible(*field_));
    }
}

void EditActions::TrackFocus(QWidget *now) {
    // The menu bar has the focus only while the user navigates it by keys.
    if (now == nullptr || qobject_cast<QMenuBar *>(now) != nullptr) {
        return;
    }
    const auto *combo = qobject_cast<QComboBox *>(now);
    field_ = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit *>(now);
    Update();
}
