#include "shell/MainToolbar.h"

namespace {

using Style = ToolItem::Style;

constexpr ToolItem::Properties toolItems[] = {
    {u"NewButton", Style::PushButton, u"Neu", u"page_add.png"},
    {u"EditButton", Style::PushButton, u"Bearbeiten", u"page_edit.png", false},
    {u"CopyButton", Style::PushButton, u"Duplizieren", u"page_copy.png", false},
    {u"DeleteButton", Style::PushButton, u"Löschen", u"page_delete.png", false},
    {u"ToolItem1", Style::Separator},
    {u"ToolItem2", Style::FixedSpace},
    {u"PrintButton", Style::PushButton, u"Drucken", u"printer.png"},
    {u"ToolItem3", Style::FixedSpace},
    {u"ToolItem4", Style::FlexibleSpace},
    {u"ToolItem7", Style::FlexibleSpace},
    {u"ToolItem6", Style::FlexibleSpace},
    {u"ToolItem5", Style::Separator},
    {u"PreferencesButton", Style::PushButton, u"Einstellungen", u"interface_preferences.png"},
};

} // namespace

MainToolbar::MainToolbar() {
    for (const ToolItem::Properties &properties : toolItems) {
        ToolItem &item = *items_.emplace_back(std::make_unique<ToolItem>(properties));
        connect(&item, &ToolItem::Action, this, [this, &item] { Q_EMIT Action(item); });
    }
}
