#include "desktop/drawing/Frame.h"

#include "desktop/drawing/CanvasButton.h"
#include "support/MainWindowTest.h"

#include <QPainter>

TEST(Frame, DrawsFourEdgesAtEveryScaleFactor) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const int left : {0, 1, 2, 3}) {
            QImage image(QSize(40, 40) * scale, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.scale(scale, scale);
            FillFrame(painter, QRect(left, left, 20, 15), 1, Qt::red);
            QString level, upright;
            for (int i = 0; i < image.width(); ++i) {
                level += image.pixelColor(i, image.width() / 4) == Qt::red ? '#' : ' ';
                upright += image.pixelColor(image.width() / 4, i) == Qt::red ? '#' : ' ';
            }
            EXPECT_EQ(level.simplified().replace("##", "#"), "# #") << scale << left;
            EXPECT_EQ(upright.simplified().replace("##", "#"), "# #") << scale << left;
        }
    }
}

TEST_F(MainWindowTest, DrawsTheRingAroundTheFocusWidget) {
    Open();
    view.resize(1100, 900);
    for (const QString page : {"cashbook", "preferences"}) {
        window.MenuAction(page);
        for (int tab = 0; tab < 22; ++tab) {
            const QWidget &focus = *QApplication::focusWidget();
            const bool isOnCanvas = qobject_cast<const CanvasButton *>(&focus) != nullptr;
            const QPoint edge = focus.mapTo(&view, QPoint(9, isOnCanvas ? 2 : focus.height()));
            EXPECT_EQ(view.grab().toImage().pixel(edge), 0xff1f6aa5) << page << tab;
            Type("\t");
        }
    }
}
