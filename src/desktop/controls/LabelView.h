#pragma once

#include <QLabel>

class Label;

/// Shows a Label.
class LabelView : public QLabel {
    Q_OBJECT

public:
    LabelView(Label &label, QWidget *parent, Qt::Alignment alignment = Qt::AlignLeft);

    /// What assistive tools say before the text.
    void SetCaption(const QString &caption);

private:
    void ShowText();

    Label &label_;
    QString caption_;
};
