#pragma once
// A session with its tool engine over a small white picture, driven by synthetic mouse events
// in Bild's pixels, and a clipboard of its own.
#include "core/picturebox.h"
#include "paint/session.h"
#include "tools/editmenu.h"
#include "tools/toolengine.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

struct TestClipboard : tf::PictureClipboard {
    QImage held;
    QImage image() const override { return held; }
    void setImage(const QImage &image) override { held = image; }
    void clear() override { held = QImage(); }
};

struct ToolFixture : ::testing::Test {
    QTemporaryDir dir;
    tf::Session s;
    tf::ScriptedPrompter prompter;
    TestClipboard clip;
    tf::ToolEngine *tools = nullptr;

    static constexpr tf::ColorLong White = 0xFFFFFF;
    static constexpr tf::ColorLong Black = 0x000000;
    static constexpr tf::ColorLong Red = 0x0000FF;
    static constexpr tf::ColorLong Blue = 0xFF0000;

    void SetUp() override
    {
        s.setPrompter(&prompter);
        s.workspace().setTempDir(dir.path());
        tools = &tf::ToolEngine::of(s);
        picture(12, 10);
        s.colours().RandomColors = false;
        s.colours().ColorFore = Red;
    }
    tf::Workspace &ws() { return s.workspace(); }
    // A white picture of w x h.
    void picture(int w, int h)
    {
        ws().New_BildSize(w, h);
        ws().Bild.setPicture(QImage());
        ws().Bild.setBackColor(White);
        ws().Bild.Cls();
    }
    tf::ColorLong at(int x, int y) const { return s.workspace().Bild.Point(x, y); }
    tf::ColorLong selAt(int x, int y) const { return s.workspace().PicSelect.Point(x, y); }
    void set(const char *name, const QString &value, int index = -1)
    {
        ASSERT_TRUE(s.controls().set(tf::ControlKey{QString::fromLatin1(name), index}, value)) << name;
    }
    // A press, moves through `via`, and the release at the last point, with the left button.
    void drag(std::initializer_list<QPoint> points, int shift = 0)
    {
        const QPoint first = *points.begin();
        tools->MouseDown(tf::vbLeftButton, shift, first.x(), first.y());
        QPoint last = first;
        for (const QPoint &p : points) {
            tools->MouseMove(tf::vbLeftButton, shift, p.x(), p.y());
            last = p;
        }
        tools->MouseUp(tf::vbLeftButton, shift, last.x(), last.y());
    }
    void click(int x, int y, int button = tf::vbLeftButton)
    {
        tools->MouseDown(button, 0, x, y);
        tools->MouseUp(button, 0, x, y);
    }
    // Cuts the rectangle from (x0,y0) to (x1,y1) with the selection tool, which stays armed.
    void cut(int x0, int y0, int x1, int y1)
    {
        tools->arm(tf::Tool::Select);
        drag({QPoint(x0, y0), QPoint(x1, y1)});
    }
    // Paints a few known pixels so that moves and stamps can be told apart.
    void pattern()
    {
        tf::PictureBox &b = ws().Bild;
        for (int y = 0; y < b.Height(); ++y)
            for (int x = 0; x < b.Width(); ++x)
                b.PSet(x, y, tf::RGB(x * 20, y * 20, 100));
    }
};
