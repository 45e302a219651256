#pragma once

#include "platform/drawing/Picture.h"
#include "platform/drawing/PrinterGraphics.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QSizeF>

#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QPrinter;

/// A print job on a printer or into a PDF file. It records the pages and prints them when it is
/// destroyed: the selected pages in the selected order and number of copies. A page that would
/// extend into the upper or lower margin of the printer is moved and scaled down as a whole. A PDF
/// file is written completely or not at all. A job is successful when its queue has accepted it;
/// what the printer does with it then is not known here.
class PrintJob : public PrinterGraphics {
public:
    /// Called with a German message on failure, through the event loop.
    using ShowFailure = std::function<void(const QString &)>;
    /// The printer as the user has set it up. The database file is refused as the PDF file.
    PrintJob(std::unique_ptr<QPrinter> printer, std::optional<FolderItem> databaseFile,
             ShowFailure showFailure);
    ~PrintJob() override;

    double Width() const override;
    double Height() const override;
    void SetForeColor(Color color) override { color_ = color; }
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawRect(double left, double top, double width, double height) override;
    void FillRect(double left, double top, double width, double height) override;
    void DrawPicture(const FolderItem &file, double x, double y) override;
    void SetTextFont(const QString &family) override;
    void SetTextSize(double size) override { font_.setPointSizeF(size); }
    void SetBold(bool bold) override { font_.setBold(bold); }
    void SetUnderline(bool underline) override { font_.setUnderline(underline); }
    double TextHeight() const override;
    void DrawString(const QString &text, double x, double y) override;
    void NextPage() override;

private:
    struct Text {
        QString line;
        QPointF baseline;
        QFont font;
        QColor color;
    };
    /// Texts are drawn over the shapes.
    struct Page {
        explicit Page(const QSizeF &size) : shapes(size.width(), size.height()) {}

        Picture shapes;
        std::vector<Text> texts;
        /// The upper and lower end of the drawing in points.
        double top = std::numeric_limits<double>::max();
        double bottom = 0;
    };

    /// Returns the current page for a drawing between two y coordinates.
    Page &CurrentPage(double top, double bottom);
    /// The same for a shape.
    Picture &Shapes(double top, double bottom);
    std::vector<const Page *> PagesToPrint() const;
    /// These three return an error message, empty on success.
    [[nodiscard]] QString TryPrint() const noexcept;
    [[nodiscard]] QString Print() const;
    [[nodiscard]] QString PrintIntoFile() const;
    [[nodiscard]] bool PrintOn(QPagedPaintDevice &device) const;
    void PrintPage(QPainter &painter, const Page &page) const;
    static void PrintText(QPainter &painter, const Text &text);

    std::unique_ptr<QPrinter> printer_;
    std::optional<FolderItem> databaseFile_;
    ShowFailure showFailure_;
    /// A deque: a picture can't be moved.
    std::deque<Page> pages_;
    Color color_;
    QFont font_;
};
