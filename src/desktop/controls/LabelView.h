#pragma once

#include <QLabel>

class Label;

/// Shows a Label.
class LabelView : public QLabel {
    Q_OBJECT

public:
    LabelView(Label &label, QWidget *parent, Qt::Alignment alignment = Qt::AlignLeft);

private:
    void ShowText();

    Label &label_;
};
