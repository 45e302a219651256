#include "desktop/windows/Form.h"

#include "desktop/fields/Fields.h"
#include "platform/controls/Label.h"
#include "support/GoogleTest.h"

#include <QCoreApplication>
#include <QLabel>

/// 11 points is the largest size that is not scaled.
static QFont DesignFont(int scale) {
    return {"DejaVu Sans", 11 * scale};
}

class FormTest : public testing::Test {
protected:
    FormTest() {
        form.setFont(DesignFont(1));
        form.show();
        QCoreApplication::processEvents();
    }

    Label caption{"Caption", "kurz"};
    Form form{{200, 100}, nullptr};
    QWidget &label = *form.Add(CreateLabel(caption, &form), {10, 10, 60, 20}, LTR);
    QLabel &title = *form.AddText("Title", "T", {10, 50, 60, 40}, Qt::AlignLeft, 20);
};

TEST_F(FormTest, MovesAndStretchesLockedWidgetsWhenItIsResized) {
    form.resize(250, 100);
    QCoreApplication::processEvents();
    EXPECT_EQ(label.geometry(), QRect(10, 10, 110, 20));
    EXPECT_EQ(title.geometry(), QRect(10, 50, 60, 40));
}

TEST_F(FormTest, ScalesRectanglesAndFontSizesWithItsFont) {
    EXPECT_EQ(title.font().pixelSize(), 20);
    form.setFont(DesignFont(2));
    form.resize(form.sizeHint());
    QCoreApplication::processEvents();
    EXPECT_EQ(label.geometry(), QRect(20, 20, 120, 40));
    EXPECT_EQ(title.font().pixelSize(), 40);
}

TEST_F(FormTest, ScalesAlikeForPointAndPixelSizes) {
    QFont font("DejaVu Sans", 18);
    form.setFont(font);
    const QSize size = form.sizeHint();
    font.setPixelSize(24); // The same size at 96 dpi.
    form.setFont(font);
    EXPECT_EQ(form.sizeHint(), size);
}

TEST_F(FormTest, FitsATextThatChangesToItsRectangle) {
    const QFont font = label.font();
    caption.SetText("zu lang für 60");
    QCoreApplication::processEvents();
    EXPECT_LE(label.fontMetrics().horizontalAdvance(caption.Text()), 60);
    caption.SetText("kurz");
    QCoreApplication::processEvents();
    EXPECT_EQ(label.font(), font);
}
