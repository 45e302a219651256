#include "shell/MainMenuBar.h"

namespace {

using Kind = MenuItem::Kind;

constexpr MenuItem::Properties fileItems[] = {
    {u"AboutItem", u"Über Zolmark", {}, u"about", Kind::Apple},
    {u"UntitledSeparator1", u"-"},
    {.name = u"FileOpen", .text = u"Ö&ffnen...", .autoEnable = false},
    {u"FileSaveAs", u"&Speichern unter..."},
    {u"FileExport", u"E&xport...", {}, u"export"},
    {u"UntitledSeparator", u"-"},
    {u"FilePrint", u"&Drucken...", u"Cmd+P", u"print"},
    {u"FilePreferences", u"&Einstellungen ...", {}, u"preferences", Kind::Prefs},
    {u"UntitledSeparator0", u"-"},
    {u"FileQuit", u"&Quit", u"Cmd+Q", {}, Kind::Quit},
};

constexpr MenuItem::Properties editItems[] = {
    {u"EditUndo", u"&Undo", u"Cmd+Z"},
    {u"EditSeparator1", u"-"},
    {u"EditCut", u"&Ausschneiden", u"Cmd+X"},
    {u"EditCopy", u"&Kopieren", u"Cmd+C"},
    {u"EditPaste", u"E&infügen", u"Cmd+V"},
    {u"EditClear", u"&Löschen"},
    {u"EditSeparator2", u"-"},
    {u"EditSelectAll", u"Alles &markieren", u"Cmd+A"},
};

constexpr MenuItem::Properties dataItems[] = {
    {u"NewSaleItem", u"&Neu", u"Cmd+N", u"new"},
    {u"EditItem", u"B&earbeiten", u"Cmd+E", u"edit", Kind::Plain, false},
    {u"CopyItem", u"&Duplizieren", u"Cmd+D", u"copy", Kind::Plain, false},
    {u"DeleteItem", u"&Löschen", u"Cmd+L", u"delete", Kind::Plain, false},
};

constexpr MenuItem::Properties helpItems[] = {
    {u"QuickReferenceItem", u"Kurzanleitung"},
    {u"UntitledSeparator2", u"-"},
    {u"SupportItem", u"Support-Anfrage"},
    {u"HomepageItem", u"Hersteller-Homepage"},
};

template <size_t count>
void AddMenu(MenuItem &bar, const MenuItem::Properties &menu,
             const MenuItem::Properties (&items)[count]) {
    MenuItem &added = bar.Append(std::make_unique<MenuItem>(menu));
    for (const MenuItem::Properties &item : items) {
        added.Append(std::make_unique<MenuItem>(item));
    }
}

} // namespace

MainMenuBar::MainMenuBar() {
    AddMenu(*this, {u"FileMenu", u"&Datei"}, fileItems);
    AddMenu(*this, {u"EditMenu", u"&Bearbeiten"}, editItems);
    AddMenu(*this, {u"DataMenu", u"D&atensatz"}, dataItems);
    AddMenu(*this, {u"HilfeMenu", u"&Hilfe"}, helpItems);
}
