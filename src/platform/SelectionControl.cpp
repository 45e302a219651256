#include "platform/SelectionControl.h"

void SelectionControl::DeleteAllRows() {
    ForgetSelection();
    rows_.Clear();
    Q_EMIT Updated();
}
