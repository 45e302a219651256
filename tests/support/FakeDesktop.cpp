#include "support/FakeDesktop.h"

using namespace Qt::StringLiterals;

FolderItem FakeDesktop::ApplicationData() const {
    return FolderItem(Path(u"data"_s));
}
