#include "platform/ToolItem.h"

void ToolItem::SetCaption(const QString &caption) {
    if (caption == caption_) {
        return;
    }
    caption_ = caption;
    Q_EMIT Updated();
}
