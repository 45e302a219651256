#pragma once

#include <QLineEdit>

class TextField;

/// Shows a TextField.
class TextFieldView : public QLineEdit {
    Q_OBJECT

public:
    TextFieldView(TextField &field, QWidget *parent);
};
