#include "shell/MainToolbar.h"

namespace {

using Style = ToolItem::Style;

constexpr ToolItem::Properties toolItems[] = {
    {u"NewButton", u"Neu", u"page_add.png", u"new"},
    {u"EditButton", u"Bearbeiten", u"page_edit.png", u"edit", Style::PushButton, false},
    {u"CopyButton", u"Duplizieren", u"page_copy.png", u"copy", Style::PushButton, false},
    {u"DeleteButton", u"Löschen", u"page_delete.png", u"delete", Style::PushButton, false},
    {.name = u"ToolItem1", .style = Style::Separator},
    {.name = u"ToolItem2", .style = Style::FixedSpace},
    {u"PrintButton", u"Drucken", u"printer.png", u"print"},
    {.name = u"ToolItem3", .style = Style::FixedSpace},
    {.name = u"ToolItem4", .style = Style::FlexibleSpace},
    {.name = u"ToolItem7", .style = Style::FlexibleSpace},
    {.name = u"ToolItem6", .style = Style::FlexibleSpace},
    {.name = u"ToolItem5", .style = Style::Separator},
    {u"PreferencesButton", u"Einstellungen", u"interface_preferences.png", u"preferences"},
};

} // namespace

MainToolbar::MainToolbar() {
    for (const ToolItem::Properties &properties : toolItems) {
        ToolItem &item = *items_.emplace_back(std::make_unique<ToolItem>(properties));
        connect(&item, &ToolItem::Action, this, [this, &item] { Q_EMIT Action(item); });
    }
}
