#include "desktop/windows/Form.h"

#include "desktop/drawing/Frame.h"
#include "desktop/fields/Fields.h"
#include "desktop/look/FontScaling.h"
#include "desktop/look/TextFitting.h"
#include "platform/controls/PushButton.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

/// Returns position and length in one direction after the form grew by `added` points.
std::pair<int, int> FollowLocks(int position, int length, int added, bool lockStart, bool lockEnd) {
    if (lockStart && lockEnd) {
        return {position, std::max(0, length + added)};
    }
    return {lockEnd ? position + added : position, length};
}

} // namespace

QWidget *Form::Add(QWidget *widget, const QRect &rect, Qt::Edges locks) {
    widget->setParent(this);
    widget->setGeometry(rect);
    items_.push_back({widget, rect, locks});
    return widget;
}

QWidget *Form::AddNamed(const QString &name, QWidget *widget, const QRect &rect, Qt::Edges locks) {
    widget->setAccessibleName(name);
    // Some platforms read the current row of a combo box as its name; they do read a buddy.
    if (qobject_cast<QComboBox *>(widget) != nullptr) {
        auto *caption = new QLabel(name, this);
        caption->hide();
        caption->setBuddy(widget);
    }
    return Add(widget, rect, locks);
}

void Form::AddButton(PushButton &button, const QRect &rect, Qt::Edges locks) {
    Add(CreatePushButton(button, this), rect, locks);
    buttons_.push_back(&button);
}

QLabel *Form::AddText(const QString &name, const QString &text, const QRect &rect,
                      Qt::Alignment alignment, int fontSize, bool isBold) {
    auto *label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    const bool isVertical = alignment & Qt::AlignVertical_Mask;
    label->setAlignment(isVertical ? alignment : alignment | Qt::AlignVCenter);
    Add(label, rect);
    items_.back().font.setBold(isBold);
    items_.back().fontSize = fontSize;
    return label;
}

QSize Form::sizeHint() const {
    return Scaled(QRect({}, design_), ScaleFactor(*this)).size();
}

bool Form::event(QEvent *event) {
    const bool isHandled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        LayOut();
        break;
    default:
        break;
    }
    return isHandled;
}

void Form::LayOut() {
    const double factor = ScaleFactor(*this);
    const QSize added = size() - sizeHint();
    for (const Item &each : items_) {
        const QRect rect = Scaled(each.rect, factor);
        const auto [left, width] =
            FollowLocks(rect.left(), rect.width(), added.width(), each.locks.testFlag(Qt::LeftEdge),
                        each.locks.testFlag(Qt::RightEdge));
        const auto [top, height] =
            FollowLocks(rect.top(), rect.height(), added.height(), each.locks.testFlag(Qt::TopEdge),
                        each.locks.testFlag(Qt::BottomEdge));
        each.widget->setGeometry(left, top, width, height);
        QFont font = each.font;
        if (each.fontSize > 0) {
            font.setPixelSize(Scaled(each.fontSize, factor));
        }
        FitText(*each.widget, font);
    }
}

void Form::paintEvent(QPaintEvent * /*event*/) {
    if (!frame_) {
        return;
    }
    QPainter painter(this);
    painter.fillRect(rect(), QColor(frame_->fill));
    FillFrame(painter, rect(), 1, QColor(frame_->border));
}

void Form::keyPressEvent(QKeyEvent *event) {
    const bool accepts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool rejects = event->key() == Qt::Key_Escape;
    for (PushButton *button : buttons_) {
        const bool matches = (accepts && button->Kind() == PushButton::Role::Default) ||
                             (rejects && button->Kind() == PushButton::Role::Cancel);
        if (matches && button->Visible()) {
            button->Press();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}
