#pragma once

#include <QWidget>

/// Shows a short hint below a field, above other widgets, and is deleted with the field. Mouse
/// events go to the widgets below. The hint moves down if it would cover a label or message.
class HintView : public QWidget {
    Q_OBJECT

public:
    explicit HintView(QWidget &field);

    /// Shows the hint; an empty text hides it.
    void SetText(const QString &hint);

    /// Moves the hint when the layout around the field has changed.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect HintRect() const;

    const QWidget &field_;
    QString hint_;
};
