#include "desktop/drawing/Frame.h"

#include "desktop/drawing/CanvasButton.h"
#include "desktop/drawing/FocusRing.h"
#include "support/MainWindowTest.h"

TEST(Frame, DrawsFourEdgesAtEveryScaleFactor) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const int left : {0, 1, 2, 3}) {
            QImage image(QSize(40, 40) * scale, QImage::Format_RGB32);
            image.fill(Qt::white);
            image.setDevicePixelRatio(scale);
            QPainter painter(&image);
            FillFrame(painter, QRect(left, left, 20, 15), 1, Qt::red);
            painter.end();
            QString horizontal, vertical;
            for (int i = 0; i < image.width(); ++i) {
                horizontal += image.pixelColor(i, image.width() / 4) == Qt::red ? u'#' : u' ';
                vertical += image.pixelColor(image.width() / 4, i) == Qt::red ? u'#' : u' ';
            }
            EXPECT_EQ((horizontal + " | " + vertical).simplified().replace("##", "#"), "# # | # #")
                << scale << left;
        }
    }
}

TEST_F(MainWindowTest, DrawsTheRingAroundTheFocusWidget) {
    Open();
    view.resize(1100, 900);
    const auto &ring = *view.findChild<FocusRing *>();
    const auto hasRing = [&](QWidget &widget) {
        return ring.widget() == &widget && ring.isVisible() &&
               view.grab().toImage().pixel(widget.mapTo(&view, QPoint(9, widget.height()))) ==
                   0xff1f6aa5;
    };
    for (const auto &[command, first] :
         {std::pair("cashbook", "DateField"), {"preferences", "CompanyField"}}) {
        window.MenuAction(command);
        Find<QWidget>(first).setFocus();
        for (int tab = 0; tab < 22; ++tab) {
            QWidget &focus = *QApplication::focusWidget();
            const bool drawsItsOwnRing = qobject_cast<CanvasButton *>(&focus) != nullptr;
            EXPECT_TRUE(drawsItsOwnRing ? focus.grab().toImage().pixel(2, 9) == 0xff1f6aa5
                                        : hasRing(focus))
                << tab;
            Type("\t");
        }
    }
    Find<QTableView>("CashaccountList").setFocus();
    Type("{Down}{F2}");
    EXPECT_TRUE(hasRing(Find<QLineEdit>("CellEditor")));
}
