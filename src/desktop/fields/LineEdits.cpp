#include "desktop/fields/LineEdits.h"

#include "platform/values/Text.h"

#include <QLineEdit>
#include <QValidator>

namespace {

class OneLineValidator : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString &text, int &cursor) const override {
        cursor = static_cast<int>(OneLine(text.left(cursor)).size());
        text = OneLine(text);
        return Acceptable;
    }
};

} // namespace

void AcceptOneLine(QLineEdit &edit) {
    edit.setValidator(new OneLineValidator(&edit));
}

void ShowBeginning(QLineEdit &edit) {
    if (!edit.hasFocus()) {
        edit.setCursorPosition(0);
    }
}
