#pragma once

class QAbstractItemView;

/// Makes the pop-up list of a combo box at least as wide as its longest row.
void FitToLongestRow(QAbstractItemView &list);
