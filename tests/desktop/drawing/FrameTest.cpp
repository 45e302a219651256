#include "desktop/drawing/Frame.h"

#include "desktop/drawing/CanvasButton.h"
#include "desktop/drawing/FocusRing.h"
#include "support/MainWindowTest.h"

TEST(Frame, HasItsFourEdgesAtAnyScaleOfTheScreen) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const int left : {0, 1, 2, 3}) {
            QImage image(QSize(40, 40) * scale, QImage::Format_RGB32);
            image.fill(Qt::white);
            image.setDevicePixelRatio(scale);
            QPainter painter(&image);
            FillFrame(painter, QRect(left, left, 20, 15), 1, Qt::red);
            painter.end();
            QString across, down;
            for (int at = 0; at < image.width(); ++at) {
                across += image.pixelColor(at, image.width() / 4) == Qt::red ? u'#' : u' ';
                down += image.pixelColor(image.width() / 4, at) == Qt::red ? u'#' : u' ';
            }
            EXPECT_EQ((across + u" | "_s + down).simplified().replace(u"##"_s, u"#"_s), u"# # | # #"_s)
                << scale << left;
        }
    }
}

TEST_F(MainWindowTest, RingsWhateverHasTheFocus) {
    Open();
    view.resize(1100, 900);
    const auto &ring = *view.findChild<FocusRing *>();
    const auto looksRinged = [&](QWidget &widget) {
        return ring.widget() == &widget && ring.isVisible() &&
               view.grab().toImage().pixel(widget.mapTo(&view, QPoint(9, widget.height()))) == 0xff1f6aa5;
    };
    for (const auto &[command, first] :
         {std::pair(u"cashbook"_s, u"DateField"_s), {u"preferences"_s, u"CompanyField"_s}}) {
        window.MenuAction(command);
        Find<QWidget>(first).setFocus();
        for (int tab = 0; tab < 22; ++tab) {
            QWidget &focus = *QApplication::focusWidget();
            const bool ringsItself = qobject_cast<CanvasButton *>(&focus) != nullptr;
            EXPECT_TRUE(ringsItself ? focus.grab().toImage().pixel(2, 9) == 0xff1f6aa5 : looksRinged(focus)) << tab;
            Type(u"\t"_s);
        }
    }
    Find<QTableView>(u"CashaccountList"_s).setFocus();
    Type(u"{Down}{F2}"_s);
    EXPECT_TRUE(looksRinged(Find<QLineEdit>(u"CellEditor"_s)));
}
