#pragma once

#include "platform/Graphics.h"

#include <QStringList>

/// A surface that writes down what is drawn on it: "line 0 0 10 0", "fill 0 1 10 9" and so on, each
/// with its colour in hexadecimal digits in front.
class DrawingRecorder : public Graphics {
public:
    QStringList drawn;

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

private:
    void Note(const char *what, std::initializer_list<double> numbers) {
        QString line = QString::number(color_.rgb, 16) + QLatin1Char(' ') + QLatin1String(what);
        for (const double number : numbers) {
            line += QLatin1Char(' ') + QString::number(number);
        }
        drawn.append(line);
    }

    Color color_;
};
