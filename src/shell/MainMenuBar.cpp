#include "shell/MainMenuBar.h"

namespace {

using Kind = MenuItem::Kind;

constexpr MenuItem::Properties fileItems[] = {
    {u"AboutItem", u"Über Zolmark", Kind::Apple},
    {u"UntitledSeparator1", u"-"},
    {.name = u"FileOpen", .text = u"Ö&ffnen...", .autoEnable = false},
    {u"FileSaveAs", u"&Speichern unter..."},
    {u"FileExport", u"E&xport..."},
    {u"UntitledSeparator", u"-"},
    {u"FilePrint", u"&Drucken...", Kind::Plain, u"Cmd+P"},
    {u"FilePreferences", u"&Einstellungen ...", Kind::Prefs},
    {u"UntitledSeparator0", u"-"},
    {u"FileQuit", u"&Quit", Kind::Quit, u"Cmd+Q"},
};

constexpr MenuItem::Properties editItems[] = {
    {u"EditUndo", u"&Undo", Kind::Plain, u"Cmd+Z"},
    {u"EditSeparator1", u"-"},
    {u"EditCut", u"&Ausschneiden", Kind::Plain, u"Cmd+X"},
    {u"EditCopy", u"&Kopieren", Kind::Plain, u"Cmd+C"},
    {u"EditPaste", u"E&infügen", Kind::Plain, u"Cmd+V"},
    {u"EditClear", u"&Löschen"},
    {u"EditSeparator2", u"-"},
    {u"EditSelectAll", u"Alles &markieren", Kind::Plain, u"Cmd+A"},
};

constexpr MenuItem::Properties dataItems[] = {
    {u"NewSaleItem", u"&Neu", Kind::Plain, u"Cmd+N"},
    {u"EditItem", u"B&earbeiten", Kind::Plain, u"Cmd+E", false},
    {u"CopyItem", u"&Duplizieren", Kind::Plain, u"Cmd+D", false},
    {u"DeleteItem", u"&Löschen", Kind::Plain, u"Cmd+L", false},
};

constexpr MenuItem::Properties helpItems[] = {
    {u"QuickReferenceItem", u"Kurzanleitung"},
    {u"UntitledSeparator2", u"-"},
    {u"SupportItem", u"Support-Anfrage"},
    {u"HomepageItem", u"Hersteller-Homepage"},
};

template <size_t count>
MenuItem &AddMenu(MenuItem &bar, const MenuItem::Properties &menu,
                  const MenuItem::Properties (&items)[count]) {
    MenuItem &added = bar.Append(std::make_unique<MenuItem>(menu));
    for (const MenuItem::Properties &item : items) {
        added.Append(std::make_unique<MenuItem>(item));
    }
    return added;
}

} // namespace

MainMenuBar::MainMenuBar()
    : FileMenu(AddMenu(*this, {u"FileMenu", u"&Datei"}, fileItems)),
      EditMenu(AddMenu(*this, {u"EditMenu", u"&Bearbeiten"}, editItems)),
      DataMenu(AddMenu(*this, {u"DataMenu", u"D&atensatz"}, dataItems)),
      HilfeMenu(AddMenu(*this, {u"HilfeMenu", u"&Hilfe"}, helpItems)) {}
