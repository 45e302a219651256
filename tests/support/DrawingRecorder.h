#pragma once

#include "platform/drawing/PrinterGraphics.h"

#include <QStringList>

/// A surface that writes down what is drawn on it: "line 0 0 10 0", "fill 0 1 10 9", or a text
/// after its place, "40 270 Endbestand". What differs in its look from the step before has the
/// look in front: "333333 line 0 0 10 0", "333333 Courier 10 bold 40 270 Endbestand". A line of
/// text is two points higher than its font, and in the bold face four.
class DrawingRecorder : public PrinterGraphics {
public:
    /// Writes into a list that lives longer than the surface.
    explicit DrawingRecorder(QStringList &drawn) : drawn_(drawn) {}

    double Width() const override { return 0; }
    double Height() const override { return 0; }
    void SetForeColor(Color color) override { color_ = QString::number(color.rgb, 16); }
    void DrawLine(double x1, double y1, double x2, double y2) override {
        Note(color_, QStringLiteral("line %1 %2 %3 %4").arg(x1).arg(y1).arg(x2).arg(y2));
    }
    void DrawRect(double left, double top, double width, double height) override {
        Note(color_, QStringLiteral("rect %1 %2 %3 %4").arg(left).arg(top).arg(width).arg(height));
    }
    void FillRect(double left, double top, double width, double height) override {
        Note(color_, QStringLiteral("fill %1 %2 %3 %4").arg(left).arg(top).arg(width).arg(height));
    }
    void DrawPicture(const FolderItem & /*file*/, double x, double y) override {
        Note(color_, QStringLiteral("picture %1 %2").arg(x).arg(y));
    }
    void SetTextFont(const QString &family) override { font_ = family; }
    void SetTextSize(double size) override { size_ = size; }
    void SetBold(bool bold) override { bold_ = bold; }
    void SetUnderline(bool underline) override { underline_ = underline; }
    double TextHeight() const override { return size_ + (bold_ ? 4 : 2); }
    void DrawString(const QString &text, double x, double y) override {
        const QString style =
            QLatin1String(bold_ ? " bold" : "") + QLatin1String(underline_ ? " underlined" : "");
        Note(QStringLiteral("%1 %2 %3%4").arg(color_, font_, QString::number(size_), style),
             QStringLiteral("%1 %2 %3").arg(QString::number(x), QString::number(y), text));
    }
    void NextPage() override { drawn_.append(QStringLiteral("next page")); }

private:
    void Note(const QString &look, const QString &step) {
        drawn_.append(std::exchange(look_, look) == look ? step : look + QLatin1Char(' ') + step);
    }

    QStringList &drawn_;
    QString color_;
    QString font_;
    double size_ = 0;
    bool bold_ = false;
    bool underline_ = false;
    QString look_;
};
