#include "desktop/controls/OneLinePaste.h"

#include "platform/values/Text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

/// Pastes what is not one line yet. All else is left to the toolkit, which makes a step of its own
/// of it for Undo.
bool Paste(QLineEdit &edit, QClipboard::Mode mode) {
    const QString text = QApplication::clipboard()->text(mode);
    const QString line = OneLine(text);
    if (line == text) {
        return false;
    }
    edit.insert(line);
    return true;
}

/// Stands before a line edit and answers each of the roads by which it takes foreign text.
class OneLinePaste : public QObject {
public:
    explicit OneLinePaste(QLineEdit &edit) : QObject(&edit), edit_(edit) {
        edit.installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
            return PasteByKey(*static_cast<QKeyEvent *>(event));
        case QEvent::MouseButtonRelease:
            return PasteByMouse(*static_cast<QMouseEvent *>(event));
        case QEvent::ContextMenu:
            OpenMenu(static_cast<QContextMenuEvent *>(event)->globalPos());
            return true;
        case QEvent::Drop:
            return Drop(*static_cast<QDropEvent *>(event));
        default:
            return false;
        }
    }

private:
    bool PasteByKey(const QKeyEvent &event) {
        if (!event.matches(QKeySequence::Paste)) {
            return false;
        }
        const bool selection = event.key() == Qt::Key_Insert &&
                               event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        return Paste(edit_, selection ? QClipboard::Selection : QClipboard::Clipboard);
    }

    /// The middle button pastes what is marked in any program, where the desktop knows that.
    bool PasteByMouse(const QMouseEvent &event) {
        if (event.button() != Qt::MiddleButton || !QApplication::clipboard()->supportsSelection()) {
            return false;
        }
        edit_.deselect();
        return Paste(edit_, QClipboard::Selection);
    }

    void OpenMenu(QPoint place) {
        QMenu *menu = edit_.createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (QAction *action : menu->actions()) {
            // The toolkit has no other name for its entry.
            if (action->text().startsWith(QLineEdit::tr("&Paste"))) {
                action->disconnect(&edit_);
                connect(action, &QAction::triggered, this, [this] { PasteAsOneLine(edit_); });
            }
        }
        menu->popup(place);
    }

    /// Hands on the same drop with another text.
    bool Drop(QDropEvent &event) {
        const QString text = event.mimeData()->text();
        if (OneLine(text) == text) {
            return false;
        }
        QMimeData line;
        line.setText(OneLine(text));
        QDropEvent drop(event.position(), event.possibleActions(), &line, event.buttons(),
                        event.modifiers());
        drop.setDropAction(event.dropAction());
        edit_.event(&drop);
        event.setDropAction(drop.dropAction());
        event.setAccepted(drop.isAccepted());
        return true;
    }

    QLineEdit &edit_;
};

} // namespace

void TakeAsOneLine(QLineEdit &edit) {
    // Owned by the line edit.
    new OneLinePaste(edit);
}

void PasteAsOneLine(QLineEdit &edit) {
    if (!Paste(edit, QClipboard::Clipboard)) {
        edit.paste();
    }
}
