// The text types in the desktop program: choosing one brings the text dialog up beside its
// panel; what is typed into the dialog is the text that paints; the placing buttons make the
// next click on the picture the text's place. With TF_SCREENSHOTS set to a folder the window
// and the dialog are saved there.
#include "support/files.h"
#include "core/picturebox.h"
#include "paint/controls.h"
#include "paint/session.h"
#include "paint/textstate.h"
#include "ui/colourfield.h"
#include "ui/pictureview.h"
#include "ui/textdialog.h"
#include "windowfixture.h"

#include <QComboBox>
#include <QFile>
#include <QPlainTextEdit>
#include <QMouseEvent>

using namespace tf;

namespace {

struct TextWindowTest : StartedWindow {
    void SetUp() override
    {
        StartedWindow::SetUp();
        Session &s = window->session();
        s.colours().RandomColors = false;
        s.colours().RandomValues = false;
    }
    ui::TextDialog *dialog() { return window->findChild<ui::TextDialog *>(QStringLiteral("frmTextDialog")); }
    // A press of the left button on the picture at `at`, as the mouse gives it.
    void pressOnPicture(QPoint at)
    {
        auto *view = window->findChild<ui::PictureView *>();
        ASSERT_NE(view, nullptr);
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(at), view->mapToGlobal(QPointF(at)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &press);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(at), view->mapToGlobal(QPointF(at)),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view, &release);
        QApplication::processEvents();
    }
    // The box of the pixels of Bild that are not white.
    QRect ink()
    {
        const QImage &img = window->session().workspace().Bild.Image();
        QRect box;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                if ((img.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) box |= QRect(x, y, 1, 1);
        return box;
    }
};

} // namespace

TEST_F(TextWindowTest, ATextTypeBringsTheTextDialogAndItsTextPaints)
{
    ASSERT_NE(dialog(), nullptr);
    EXPECT_FALSE(dialog()->isVisible());
    choose("TEXT-Textblock");
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(options()->currentPanel(),
              QStringLiteral("feat_13TextBlock"));
    // The alignments as a list: the option button's "&&" is one "&" there.
    auto *align = window->findChild<QComboBox *>(QStringLiteral("optTextBlockAlign"));
    ASSERT_NE(align, nullptr);
    ASSERT_EQ(align->count(), 5);
    EXPECT_EQ(align->itemText(3), QStringLiteral("Kinoabspann"));
    EXPECT_EQ(align->itemText(4), QStringLiteral("Links & rechts"));

    auto *edit = dialog()->findChild<QPlainTextEdit *>(QStringLiteral("txtOrthoIn"));
    ASSERT_NE(edit, nullptr);
    edit->setPlainText(QStringLiteral("Größe, Übermaß,\nÄpfel und Öl"));
    EXPECT_EQ(window->session().controls().text(QStringLiteral("txtOrthoIn")),
              QStringLiteral("Größe, Übermaß,\nÄpfel und Öl"));
    // A value set by the engine shows in the dialog.
    window->session().controls().set(ControlKey{QStringLiteral("txtOrthoIn")}, QStringLiteral("Neu"));
    EXPECT_EQ(edit->toPlainText(), QStringLiteral("Neu"));
    edit->setPlainText(QStringLiteral("Größe, Übermaß,\nÄpfel und Öl"));

    paintButton()->click();
    QApplication::processEvents();
    EXPECT_FALSE(ink().isEmpty());
    screenshot(*window, "text-window");
    screenshot(*dialog(), "text-dialog");
}

TEST_F(TextWindowTest, ThePlacingButtonMakesTheNextClickTheTextsPlace)
{
    choose("TEXT-Dialog");
    ASSERT_EQ(window->session().paint().GrafKey, QStringLiteral("TEXT-Dialog"));
    window->session().controls().set(ControlKey{QStringLiteral("txtOrthoIn")}, QStringLiteral("Hier"));
    window->session().controls().set(ControlKey{QStringLiteral("cmbShadeThickness")}, QStringLiteral("0"));
    auto *centre = button("BtnSet_TextPosC");
    ASSERT_NE(centre, nullptr);
    centre->click();
    EXPECT_EQ(window->session().text().placing, TextPlacing::Centre);

    pressOnPicture(QPoint(300, 200));
    EXPECT_EQ(window->session().text().placing, TextPlacing::Off);
    const QRect box = ink();
    ASSERT_FALSE(box.isEmpty());
    EXPECT_NEAR(box.center().x(), 300, 2);
    EXPECT_NEAR(box.center().y(), 200, 2);
    options()->raise();
    screenshot(*window, "text-placed");

    // A second click places nothing.
    const QImage before = window->session().workspace().Bild.Image();
    pressOnPicture(QPoint(50, 50));
    EXPECT_EQ(window->session().workspace().Bild.Image(), before);
}

TEST_F(TextWindowTest, ATextFileLoadsIntoTheDialogInItsEncoding)
{
    QTemporaryDir files;
    const QString western = files.filePath(QStringLiteral("westen.txt"));
    writeBytes(western, "Gr\xF6\xDF" "e \x80 5\r\n\xC4pfel");
    ASSERT_TRUE(dialog()->loadTextFile(western));
    EXPECT_EQ(window->session().controls().text(QStringLiteral("txtOrthoIn")),
              QStringLiteral("Größe € 5\r\nÄpfel"));
    EXPECT_EQ(dialog()->findChild<QPlainTextEdit *>(QStringLiteral("txtOrthoIn"))->toPlainText(),
              QStringLiteral("Größe € 5\nÄpfel"));

    // The colour dialog's foreground, taken over by a right click there, shows here when the
    // dialog comes up.
    window->session().colours().TextFore = RGB(10, 200, 30);
    dialog()->hide();
    dialog()->show();
    EXPECT_EQ(dialog()->findChild<ui::ColourField *>(QStringLiteral("txtForeColor"))->colour(),
              RGB(10, 200, 30));
}

TEST_F(TextWindowTest, TheRasterTextsShowTheirPanelAndPaintTheDialogsText)
{
    choose("TEXT-Mondrian-Raster");
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_EQ(options()->currentPanel(),
              QStringLiteral("feat_02OrthoText1"));
    auto *split = window->findChild<QComboBox *>(QStringLiteral("cmbOrthoT1_Split"));
    ASSERT_NE(split, nullptr);
    ASSERT_EQ(split->count(), 3);
    EXPECT_EQ(split->itemText(2), QStringLiteral("Wörter"));
    dialog()->findChild<QPlainTextEdit *>(QStringLiteral("txtOrthoIn"))
        ->setPlainText(QStringLiteral("Größe Übermaß Äpfel Öl Füße"));
    paintButton()->click();
    QApplication::processEvents();
    EXPECT_FALSE(ink().isEmpty());
    options()->raise();
    screenshot(*window, "text-mondrian-raster");
    // The panel's repaint paints the same frames again.
    auto *repaint = button("BtnOrthoText_Repaint");
    ASSERT_NE(repaint, nullptr);
    const QImage before = window->session().workspace().Bild.Image();
    repaint->click();
    QApplication::processEvents();
    EXPECT_NE(window->session().workspace().Bild.Image(), before);

    choose("TEXT-Spiral-Raster");
    EXPECT_EQ(options()->currentPanel(),
              QStringLiteral("feat_02OrthoText1"));
    paintButton()->click();
    QApplication::processEvents();
    EXPECT_FALSE(ink().isEmpty());
    screenshot(*window, "text-spiral-raster");
}
