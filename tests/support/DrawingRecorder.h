#pragma once

#include "platform/drawing/PrinterGraphics.h"
#include "support/GoogleTest.h"

#include <QStringList>

/// Records each drawing step as a text: "line 0 0 10 0", or a position and the text, "40 270
/// Endbestand". A step whose colour or font differs from that of the step before begins with them:
/// "333333 Courier 10 bold 40 270 Endbestand". The height of a text is the font size and two
/// points, or four in bold.
class DrawingRecorder : public PrinterGraphics {
public:
    explicit DrawingRecorder(QStringList &drawn) : drawn_(drawn) {}

    double Width() const override { return 0; }
    double Height() const override { return 0; }
    void SetForeColor(Color color) override { color_ = QString::number(color.rgb, 16); }
    void DrawLine(double x1, double y1, double x2, double y2) override {
        Append(color_, u"line %1 %2 %3 %4"_s.arg(x1).arg(y1).arg(x2).arg(y2));
    }
    void DrawRect(double left, double top, double width, double height) override {
        Append(color_, u"rect %1 %2 %3 %4"_s.arg(left).arg(top).arg(width).arg(height));
    }
    void FillRect(double left, double top, double width, double height) override {
        Append(color_, u"fill %1 %2 %3 %4"_s.arg(left).arg(top).arg(width).arg(height));
    }
    void DrawPicture(const FolderItem &file, double x, double y) override {
        Append(color_, u"%1 %2 %3"_s.arg(file.Path().section(u'/', -1)).arg(x).arg(y));
    }
    void SetTextFont(const QString &family) override { font_ = family; }
    void SetTextSize(double size) override { size_ = size; }
    void SetBold(bool bold) override { bold_ = bold; }
    void SetUnderline(bool underline) override { underline_ = underline; }
    double TextHeight() const override { return size_ + (bold_ ? 4 : 2); }
    void DrawString(const QString &text, double x, double y) override {
        const QString face = QString(bold_ ? " bold" : "") + (underline_ ? " underlined" : "");
        Append(u"%1 %2 %3%4"_s.arg(color_, font_, QString::number(size_), face),
               u"%1 %2 %3"_s.arg(x).arg(y).arg(text));
    }
    void NextPage() override { drawn_.append("next page"); }

private:
    void Append(const QString &look, const QString &step) {
        drawn_.append(std::exchange(look_, look) == look ? step : look + u' ' + step);
    }

    QStringList &drawn_;
    QString color_;
    QString font_;
    QString look_;
    double size_ = 0;
    bool bold_ = false;
    bool underline_ = false;
};
