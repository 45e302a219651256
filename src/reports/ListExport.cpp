#include "reports/ListExport.h"

#include "platform/lists/CellModel.h"
#include "platform/outside/Desktop.h"
#include "platform/outside/TextOutputStream.h"
#include "platform/values/Encodings.h"
#include "platform/values/Text.h"

using namespace Qt::StringLiterals;

namespace {

const auto endOfLine = u"\r\n"_s;

namespace FileTypes1 {

FileType TXT() {
    return {u"TXT-Datei"_s, u".txt"_s};
}

} // namespace FileTypes1

QByteArray WithSemicolons(const QString &cells) {
    return Encodings::WindowsANSI(cells).replace('\t', ';');
}

} // namespace

void TLXModule::ExportCSV(Desktop &desktop, const CellModel &list,
                          const std::optional<FolderItem> &databaseFile) {
    const std::optional<FolderItem> file =
        desktop.ShowModal({.initialDirectory = desktop.DesktopFolder(),
                           .promptText = u"Speichern als"_s,
                           .suggestedFileName = u"export.txt"_s,
                           .filter = FileTypes1::TXT(),
                           .title = u"Text Output"_s});
    if (!file) {
        return;
    }
    TextOutputStream stream(*file, databaseFile);
    stream.Write(WithSemicolons(list.Heading(-1) + endOfLine));
    stream.Write(WithSemicolons(ReplaceLineEndings(list.Cell(-1, -1), endOfLine)));
    if (!stream.Close()) {
        desktop.MsgBox(stream.ErrorMessage());
    }
}
