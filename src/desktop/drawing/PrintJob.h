#pragma once

#include "platform/drawing/PrinterGraphics.h"

#include <QColor>
#include <QFont>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QPrinter;

/// A print job on a printer or into a PDF file. It keeps the pages, and prints them when it is let
/// go, which never throws: the wanted pages in the wanted order and number. A page that would run
/// past the lower edge of the paper is scaled down as a whole; any other is printed in its own
/// size. A PDF file is there as a whole or not at all. A job counts as printed when its queue has
/// accepted it; what the printer then makes of it is not known here.
class PrintJob : public PrinterGraphics {
public:
    /// Hears a failure, in German, when the event loop comes round.
    using Tell = std::function<void(const QString &)>;
    /// The printer as the user has chosen and set it. The open book is no file to print into.
    PrintJob(std::unique_ptr<QPrinter> printer, std::optional<FolderItem> openBook, Tell tell);
    ~PrintJob() override;

    double Width() const override;
    double Height() const override;
    void SetForeColor(Color color) override { color_ = color; }
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double left, double top, double width, double height) override;
    void FillRect(double left, double top, double width, double height) override;
    void DrawPicture(const FolderItem &file, double x, double y) override;
    void SetTextFont(const QString &family) override;
    void SetTextSize(double size) override;
    void SetBold(bool bold) override { font_.setBold(bold); }
    void SetUnderline(bool underline) override { font_.setUnderline(underline); }
    double TextHeight() const override;
    void DrawString(const QString &text, double x, double y) override;
    void NextPage() override { pages_.emplace_back(); }

private:
    struct Page {
        /// Each draws on a painter whose unit is the point.
        std::vector<std::function<void(QPainter &)>> steps;
        /// How far down the drawing reaches.
        double bottom = 0;
    };

    void AddShape(double bottom, const std::function<void(Graphics &)> &draw);
    std::vector<const Page *> PagesToPrint() const;
    /// All three give what has failed, nothing if all went well.
    [[nodiscard]] QString End() const noexcept;
    [[nodiscard]] QString Print() const;
    [[nodiscard]] QString PrintIntoFile() const;
    [[nodiscard]] bool PrintOn(QPagedPaintDevice &device) const;
    void PrintPage(QPainter &painter, const Page &page) const;

    std::unique_ptr<QPrinter> printer_;
    std::optional<FolderItem> openBook_;
    Tell tell_;
    std::vector<Page> pages_;
    Color color_;
    QFont font_;
};
