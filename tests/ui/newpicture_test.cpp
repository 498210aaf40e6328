// "Neu" with its formats and its question, the free size remembered across sessions, and the
// two clearing commands of the Edit menu.
#include "windowfixture.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QSpinBox>
#include <QTimer>

using namespace tf;

namespace {

const QString Changed = QStringLiteral("Das Bild wurde geändert und der aktuelle Stand noch nicht "
                                       "gesichert.");

struct NewPictureTest : StartedWindow {
    Workspace &ws() { return window->session().workspace(); }
    QAction *action(const QString &name) { return window->findChild<QAction *>(name); }
    QAction *newFormat(int i) { return action(QStringLiteral("mn_New_Picformat(%1)").arg(i)); }
    void paintRed()
    {
        ws().Bild_nachUndo();
        ws().Bild.Line(0, 0, ws().BildW - 1, ws().BildH - 1, RGB(255, 0, 0), LineFlags::BF);
    }
    // Answers the free size dialog, once it shows, with a proportion and a size.
    void answerSizeDialog(int proportion, int width, int height)
    {
        QTimer::singleShot(0, [=] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QComboBox *>(QStringLiteral("cmbProportion"))
                ->setCurrentIndex(proportion);
            dialog->findChild<QSpinBox *>(QStringLiteral("txtWidth"))->setValue(width);
            if (height > 0)
                dialog->findChild<QSpinBox *>(QStringLiteral("txtHeight"))->setValue(height);
            dialog->accept();
        });
    }
};

} // namespace

TEST_F(NewPictureTest, AChangedPictureIsOnlyReplacedAfterYes)
{
    paintRed();
    prompter.script({Answer::No});
    newFormat(1)->trigger(); // 256 x 256
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), Changed);
    EXPECT_EQ(prompter.asked().back().buttons, Buttons::YesNo);
    EXPECT_EQ(ws().BildW, 712);
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(255, 0, 0));

    prompter.script({Answer::Yes});
    newFormat(1)->trigger();
    EXPECT_EQ(QSize(ws().BildW, ws().BildH), QSize(256, 256));
    EXPECT_EQ(ws().Bild.Point(255, 255), ws().Bild.BackColor());
    EXPECT_FALSE(ws().BildChanged);
    EXPECT_FALSE(action(QStringLiteral("mn_Undo"))->isEnabled());
    // An unchanged picture is replaced without a question.
    newFormat(6)->trigger(); // 896 x 896
    EXPECT_EQ(ws().BildW, 896);
    EXPECT_EQ(prompter.asked().size(), 2u);
}

TEST_F(NewPictureTest, TheFreeSizeIsRememberedAcrossSessions)
{
    answerSizeDialog(0, 333, 222);
    newFormat(0)->trigger();
    EXPECT_EQ(QSize(ws().BildW, ws().BildH), QSize(333, 222));
    const QString S = QStringLiteral("Settings");
    EXPECT_EQ(store->Get_Setting(S, QStringLiteral("imgFormatW"), 0), 333);
    EXPECT_EQ(store->Get_Setting(S, QStringLiteral("imgFormatH"), 0), 222);

    // The next session's dialog starts from the remembered size; a proportion ties the
    // height to the width (16:9 of 800 is 450).
    window.reset();
    start();
    QSize shown;
    QTimer::singleShot(0, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        shown = QSize(dialog->findChild<QSpinBox *>(QStringLiteral("txtWidth"))->value(),
                      dialog->findChild<QSpinBox *>(QStringLiteral("txtHeight"))->value());
        dialog->reject();
    });
    newFormat(0)->trigger();
    EXPECT_EQ(shown, QSize(333, 222));
    EXPECT_EQ(ws().BildW, 712); // cancelled: nothing changed

    answerSizeDialog(4, 800, 0);
    newFormat(0)->trigger();
    EXPECT_EQ(QSize(ws().BildW, ws().BildH), QSize(800, 450));
    EXPECT_EQ(store->Get_Setting(S, QStringLiteral("imgFormat"), 0), 4);
}

TEST_F(NewPictureTest, ClearingThePictureAsksFirstAndCanBeUndone)
{
    paintRed();
    prompter.script({Answer::No});
    action(QStringLiteral("mn_ClrPic"))->trigger();
    EXPECT_EQ(prompter.lastText(),
              Changed + QStringLiteral(" Wollen Sie das aktuelle Bild verwerfen?"));
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(255, 0, 0));

    prompter.script({Answer::Yes});
    action(QStringLiteral("mn_ClrPic"))->trigger();
    EXPECT_EQ(ws().Bild.Point(5, 5), ws().Bild.BackColor());
    action(QStringLiteral("mn_Undo"))->trigger();
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(255, 0, 0));
}

TEST_F(NewPictureTest, ClearingThePaintingEmptiesAShownSelectionOnly)
{
    PictureBox &sel = ws().PicSelect;
    sel.resize(10, 8);
    sel.setPicture(QImage());
    sel.setBackColor(RGB(1, 2, 3));
    sel.setAutoRedraw(true);
    sel.Line(0, 0, 9, 7, RGB(200, 0, 0), LineFlags::BF);
    sel.setAutoRedraw(false); // the clearing turns it on for its time only
    sel.setVisible(true);
    paintRed();
    action(QStringLiteral("mn_ClrPaint"))->trigger();
    EXPECT_EQ(sel.Point(9, 7), RGB(1, 2, 3));
    EXPECT_FALSE(sel.AutoRedraw());
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(255, 0, 0));

    sel.setVisible(false);
    action(QStringLiteral("mn_ClrPaint"))->trigger();
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(255, 0, 0)); // the picture itself stays
    EXPECT_TRUE(prompter.asked().empty());
}
