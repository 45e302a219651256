#include "platform/menus/ToolItem.h"

ToolItem::ToolItem(const Properties &properties)
    : Control(properties.name.toString()), style_(properties.style),
      caption_(properties.caption.toString()), icon_(properties.icon.toString()),
      word_(properties.word.toString()) {
    SetEnabled(properties.enabled);
}
