#pragma once

#include "platform/PrinterGraphics.h"

#include <QStringList>

/// A surface that writes down what is drawn on it: "line 0 0 10 0", "fill 0 1 10 9" and so on, each
/// with its colour in hexadecimal digits in front. A text stands with its font and its place,
/// "Courier 10 bold 40 270 Endbestand". A line of text is two points higher than its font.
class DrawingRecorder : public PrinterGraphics {
public:
    /// Writes into a list that lives longer than the surface.
    explicit DrawingRecorder(QStringList &drawn) : drawn_(drawn) {}

    double Width() const override { return 0; }
    double Height() const override { return 0; }
    void SetForeColor(Color color) override { color_ = color; }
    void DrawLine(double x1, double y1, double x2, double y2) override {
        Note("line", {x1, y1, x2, y2});
    }
    void DrawRect(double left, double top, double width, double height) override {
        Note("rect", {left, top, width, height});
    }
    void FillRect(double left, double top, double width, double height) override {
        Note("fill", {left, top, width, height});
    }
    void DrawPicture(const FolderItem & /*file*/, double x, double y) override {
        Note("picture", {x, y});
    }
    void SetTextFont(const QString &family) override { font_ = family; }
    void SetTextSize(double size) override { size_ = size; }
    void SetBold(bool bold) override { bold_ = bold; }
    void SetUnderline(bool underline) override { underline_ = underline; }
    double TextHeight() const override { return size_ + 2; }
    void DrawString(const QString &text, double x, double y) override {
        const QString style =
            QLatin1String(bold_ ? " bold" : "") + QLatin1String(underline_ ? " underlined" : "");
        drawn_.append(QStringLiteral("%1 %2 %3%4 %5 %6 %7")
                          .arg(QString::number(color_.rgb, 16), font_, QString::number(size_),
                               style, QString::number(x), QString::number(y), text));
    }
    void NextPage() override { drawn_.append(QStringLiteral("next page")); }

private:
    void Note(const char *what, std::initializer_list<double> numbers) {
        QString line = QString::number(color_.rgb, 16) + QLatin1Char(' ') + QLatin1String(what);
        for (const double number : numbers) {
            line += QLatin1Char(' ') + QString::number(number);
        }
        drawn_.append(line);
    }

    QStringList &drawn_;
    Color color_;
    QString font_;
    double size_ = 0;
    bool bold_ = false;
    bool underline_ = false;
};
