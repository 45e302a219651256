#include "desktop/drawing/PrintJob.h"

#include "desktop/drawing/PainterGraphics.h"
#include "platform/outside/TextOutputStream.h"
#include "platform/values/Text.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <cups/cups.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double pointsPerInch = 72;
const auto cannotPrint = u"Der Bericht konnte nicht gedruckt werden."_s;

QSizeF PaperSize(const QPrinter &printer) {
    return printer.pageLayout().fullRect(QPageLayout::Point).size();
}

/// Returns the margins in points in which the printer can't print.
QMarginsF PrinterMargins(const QPrinter &printer) {
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Point);
    return layout.minimumMargins();
}

/// Returns why the last printed job has not reached its queue, in German; empty if it has. Qt does
/// not report it.
QString QueueFailure(const QString &printer) {
    const ipp_status_t status = cupsLastError();
    if (status < IPP_STATUS_ERROR_BAD_REQUEST) {
        return {};
    }
    QString reason = QString::fromUtf8(cupsLastErrorString());
    if (status == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS) {
        reason = u"Er nimmt keine Aufträge an."_s;
    } else if (QPrinterInfo::printerInfo(printer).isNull()) {
        reason = u"Er ist nicht mehr eingerichtet, oder der Druckdienst läuft nicht."_s;
    } else if (status == IPP_STATUS_ERROR_INTERNAL || status == IPP_STATUS_ERROR_REQUEST_ENTITY ||
               status == IPP_STATUS_ERROR_REQUEST_VALUE) {
        // For example on a full disk; the library's text then misleads.
        reason = u"Der Druckdienst konnte ihn nicht speichern."_s;
    }
    return u"Der Drucker %1 hat den Bericht nicht angenommen: %2"_s.arg(printer, reason);
}

} // namespace

PrintJob::PrintJob(std::unique_ptr<QPrinter> printer, std::optional<FolderItem> databaseFile,
                   ShowFailure showFailure)
    : printer_(std::move(printer)), databaseFile_(std::move(databaseFile)),
      showFailure_(std::move(showFailure)) {
    printer_->setFullPage(true);
    PrintJob::NextPage();
}

PrintJob::~PrintJob() {
    if (const QString failure = TryPrint(); !failure.isEmpty()) {
        QMetaObject::invokeMethod(
            qApp, [show = std::move(showFailure_), failure] { show(failure); },
            Qt::QueuedConnection);
    }
}

QString PrintJob::TryPrint() const noexcept {
    try {
        return Print();
    } catch (const std::exception &) {
        return cannotPrint;
    }
}

double PrintJob::Width() const {
    return PaperSize(*printer_).width();
}

double PrintJob::Height() const {
    return PaperSize(*printer_).height();
}

PrintJob::Page &PrintJob::CurrentPage(double top, double bottom) {
    Page &page = pages_.back();
    page.top = std::min(page.top, top);
    page.bottom = std::max(page.bottom, bottom);
    return page;
}

Picture &PrintJob::Shapes(double top, double bottom) {
    Picture &shapes = CurrentPage(top, bottom).shapes;
    shapes.SetForeColor(color_);
    return shapes;
}

void PrintJob::DrawLine(double x1, double y1, double x2, double y2) {
    Shapes(std::min(y1, y2), std::max(y1, y2)).DrawLine(x1, y1, x2, y2);
}

void PrintJob::DrawRect(double left, double top, double width, double height) {
    Shapes(top, top + height).DrawRect(left, top, width, height);
}

void PrintJob::FillRect(double left, double top, double width, double height) {
    Shapes(top, top + height).FillRect(left, top, width, height);
}

void PrintJob::DrawPicture(const FolderItem &file, double x, double y) {
    Shapes(y, y).DrawPicture(file, x, y);
}

void PrintJob::SetTextFont(const QString &family) {
    // The report needs a fixed-pitch font; the system may replace Courier by another one.
    font_.setFamily(family);
    if (!QFontInfo(QFont(font_, printer_.get())).fixedPitch()) {
        font_.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    }
}

double PrintJob::TextHeight() const {
    const QFontMetricsF metrics(font_, printer_.get());
    return metrics.height() * pointsPerInch / printer_->resolution();
}

void PrintJob::DrawString(const QString &text, double x, double y) {
    const QFontMetricsF metrics(font_, printer_.get());
    const double toPoints = pointsPerInch / printer_->resolution();
    CurrentPage(y - metrics.ascent() * toPoints, y + metrics.descent() * toPoints)
        .texts.push_back({OneLine(text), {x, y}, font_, QColor(QRgb(color_.rgb))});
}

void PrintJob::NextPage() {
    pages_.emplace_back(PaperSize(*printer_));
}

std::vector<const PrintJob::Page *> PrintJob::PagesToPrint() const {
    std::vector<const Page *> pages;
    const QPageRanges selected = printer_->pageRanges();
    for (size_t page = 0; page < pages_.size(); ++page) {
        if (selected.isEmpty() || selected.contains(static_cast<int>(page) + 1)) {
            pages.push_back(&pages_[page]);
        }
    }
    if (printer_->pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    const int copies = printer_->supportsMultipleCopies() ? 1 : printer_->copyCount();
    std::vector<const Page *> all;
    if (printer_->collateCopies()) {
        for (int copy = 0; copy < copies; ++copy) {
            all.insert(all.end(), pages.begin(), pages.end());
        }
    } else {
        for (const Page *page : pages) {
            all.insert(all.end(), static_cast<size_t>(copies), page);
        }
    }
    return all;
}

QString PrintJob::Print() const {
    if (PagesToPrint().empty()) {
        return u"Der Bericht hat keine Seite in dem gewählten Bereich."_s;
    }
    if (printer_->outputFormat() == QPrinter::PdfFormat) {
        return PrintIntoFile();
    }
    return PrintOn(*printer_) ? QueueFailure(printer_->printerName()) : cannotPrint;
}

QString PrintJob::PrintIntoFile() const {
    QBuffer pdf;
    const bool isOpen = pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setResolution(printer_->resolution());
    writer.setPageLayout(printer_->pageLayout());
    writer.setTitle(printer_->docName());
    if (!isOpen || !PrintOn(writer)) {
        return cannotPrint;
    }
    TextOutputStream file(FolderItem(printer_->outputFileName()), databaseFile_);
    file.Write(pdf.data());
    return file.Close() ? QString() : file.ErrorMessage();
}

bool PrintJob::PrintOn(QPagedPaintDevice &device) const {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    bool isFirst = true;
    for (const Page *page : PagesToPrint()) {
        if (!std::exchange(isFirst, false) && !device.newPage()) {
            return false;
        }
        PrintPage(painter, *page);
    }
    return painter.end();
}

void PrintJob::PrintPage(QPainter &painter, const Page &page) const {
    painter.save();
    const double toDevice = painter.device()->logicalDpiY() / pointsPerInch;
    painter.scale(toDevice, toDevice);
    const QMarginsF margins = PrinterMargins(*printer_);
    const double printableBottom = Height() - margins.bottom();
    double fit = std::min(1.0, printableBottom / page.bottom);
    if (page.top * fit < margins.top()) {
        fit = std::min(1.0, (printableBottom - margins.top()) / (page.bottom - page.top));
        painter.translate(0, margins.top() - page.top * fit);
    }
    painter.scale(fit, fit);
    {
        PainterGraphics surface(painter, QRectF({}, PaperSize(*printer_)));
        page.shapes.DrawOn(surface);
    }
    for (const Text &text : page.texts) {
        PrintText(painter, text);
    }
    painter.restore();
}

void PrintJob::PrintText(QPainter &painter, const Text &text) {
    painter.save();
    painter.translate(text.baseline);
    // A font size in points is converted by the device itself.
    const double toPoints = pointsPerInch / painter.device()->logicalDpiY();
    painter.scale(toPoints, toPoints);
    painter.setFont(text.font);
    painter.setPen(text.color);
    painter.drawText(QPointF(), text.line);
    painter.restore();
}
