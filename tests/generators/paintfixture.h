#pragma once
// A session with every painter and panel of the engine, painting a type by its key through
// the Paint command as the paint dialog would; the generator tests build on it.
#include "core/picturebox.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

#include <gtest/gtest.h>

struct PaintFixture : ::testing::Test {
    struct EngineFirst {
        EngineFirst() { tf::registerAllPanels(); }
    } engine;
    tf::Session s;
    tf::ScriptedPrompter prompter;

    void SetUp() override
    {
        s.setPainters(tf::painterTable());
        s.setPrompter(&prompter);
    }
    void size(int w, int h) { s.workspace().New_BildSize(w, h); }
    void fixedColours(tf::ColorLong fore, tf::ColorLong back)
    {
        s.colours().RandomColors = false;
        s.colours().RandomValues = false;
        s.colours().ColorFore = fore;
        s.colours().ColorBack = back;
    }
    // Sets a control through its normalising rule, as a user's change would.
    void set(const char *name, const QString &value, int index = -1)
    {
        ASSERT_TRUE(s.controls().set(tf::ControlKey{QString::fromLatin1(name), index}, value)) << name;
    }
    // Writes a control's value as it stands, without the rule.
    void setRaw(const char *name, const QString &value, int index = -1)
    {
        s.controls().setRaw(tf::ControlKey{QString::fromLatin1(name), index}, value);
    }
    // Chooses the type of `key` in its group and presses Paint with `seed`.
    tf::PaintOutcome paint(const char *key, uint32_t seed = 1)
    {
        const auto where = tf::findType(QString::fromUtf8(key));
        EXPECT_TRUE(where.has_value()) << key;
        if (!where) return tf::PaintOutcome::NotPaintable;
        tf::mn_Grafmodes(s, where->group);
        tf::ListBoxType_Click(s, where->listIndex);
        s.paint().nextSeed = seed;
        return tf::BtnPaint_Click(s);
    }
    // Lays a picture of one colour as the persistent picture (what Bild_CLEAR comes back to).
    void ground(tf::ColorLong c)
    {
        tf::PictureBox &b = s.workspace().Bild;
        b.Line(0, 0, b.Width() - 1, b.Height() - 1, c, tf::LineFlags::BF);
        b.setPicture(b.Image());
    }
    tf::ColorLong at(int x, int y) { return s.workspace().Bild.Point(x, y); }
    const QImage &image() { return s.workspace().Bild.Image(); }
};
