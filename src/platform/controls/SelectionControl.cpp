#include "platform/controls/SelectionControl.h"

void SelectionControl::DeleteAllRows() {
    rows_.Clear();
    ForgetSelection();
    Q_EMIT Updated();
}
