#pragma once

#include <QWidget>

/// A few words below a field, over what lies there, for as long as there is the field. Clicks go
/// through them; a message that stands there already stays readable, and they go below it.
class HintView : public QWidget {
    Q_OBJECT

public:
    explicit HintView(QWidget &field);

    /// Shows the hint; an empty text hides it.
    void SetText(const QString &hint);

    /// Moves the hint when what lies around the field has changed.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect HintRect() const;

    const QWidget &field_;
    QString hint_;
};
