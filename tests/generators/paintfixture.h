#pragma once
// A session with every painter and panel of the engine, painting a type by its key through
// the Paint command as the paint dialog would; the generator tests build on it.
#include "core/picturebox.h"
#include "core/yield.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/colourstate.h"
#include "paint/grafdialog.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

#include <QRect>
#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>
#include <vector>

// Answers "stop" from its n-th call on, as a window whose Stop was clicked.
class StopAfter : public tf::YieldHook {
public:
    explicit StopAfter(int n) : m_n(n) {}
    bool yield() override { return ++calls >= m_n; }
    int calls = 0;

private:
    int m_n;
};

// Logs every caption the Paint button shows.
class CaptionLog : public tf::GrafDialogView {
public:
    explicit CaptionLog(const tf::GrafDialogState &d) : m_d(d) {}
    void grafDialogChanged(tf::GrafDialogState::Change c) override
    {
        if (c == tf::GrafDialogState::Change::Caption) captions.push_back(m_d.BtnPaintCaption());
    }
    std::vector<QString> captions;

private:
    const tf::GrafDialogState &m_d;
};

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
    // How many pixels are `c`, and how many are not.
    int count(tf::ColorLong c)
    {
        const tf::PictureBox &b = s.workspace().Bild;
        int n = 0;
        for (int y = 0; y < b.Height(); ++y)
            for (int x = 0; x < b.Width(); ++x) n += b.Point(x, y) == c;
        return n;
    }
    int countOther(tf::ColorLong c) { return image().width() * image().height() - count(c); }
    // The box of the pixels inside `r` (the whole picture when empty) that are not `c`.
    QRect boxOfOther(tf::ColorLong c, QRect r = QRect())
    {
        if (r.isEmpty()) r = image().rect();
        QRect box;
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x)
                if (image().valid(x, y) && at(x, y) != c) box |= QRect(x, y, 1, 1);
        return box;
    }
    // Paints every key with three seeds, with and without the colour table, on `groundColour`:
    // each changes the picture.
    void expectEveryVariantPaints(std::initializer_list<const char *> keys, tf::ColorLong groundColour)
    {
        for (bool table : {false, true}) {
            s.colours().XDuotones[0] = table;
            for (const char *key : keys)
                for (uint32_t seed : {1u, 7u, 99u}) {
                    ground(groundColour);
                    ASSERT_EQ(paint(key, seed), tf::PaintOutcome::Painted) << key;
                    EXPECT_GT(countOther(groundColour), 0) << key << ' ' << seed << ' ' << table;
                }
        }
        s.colours().XDuotones[0] = false;
    }
    // Paints `key` once to the end, then again with Stop clicked at the `after`-th yield: the
    // stopped paint keeps a part of the whole, and the Paint button shows "STO&PP !", then
    // "Stopped - Wait!" and "Paint <F5>". Answers how many pixels each left off the ground.
    std::pair<int, int> expectStopKeepsAPart(const char *key, int after, tf::ColorLong groundColour)
    {
        ground(groundColour);
        EXPECT_EQ(paint(key, 5), tf::PaintOutcome::Painted) << key;
        const QImage whole = image().copy();
        const int wholeCount = countOther(groundColour);
        ground(groundColour);
        CaptionLog log(s.paint().dialog);
        s.paint().dialog.setView(&log);
        StopAfter stop(after);
        s.setYieldHook(&stop);
        EXPECT_EQ(paint(key, 5), tf::PaintOutcome::Painted) << key;
        s.setYieldHook(nullptr);
        s.paint().dialog.setView(nullptr);
        EXPECT_EQ(stop.calls, after) << key;
        EXPECT_NE(image(), whole) << key;
        const int part = countOther(groundColour);
        EXPECT_GT(part, 0) << key;
        EXPECT_GE(log.captions.size(), 3u) << key;
        if (log.captions.size() >= 3) {
            EXPECT_EQ(log.captions.front(), QStringLiteral("STO&PP !")) << key;
            EXPECT_EQ(log.captions[log.captions.size() - 2], QStringLiteral("Stopped - Wait!")) << key;
            EXPECT_EQ(log.captions.back(), QStringLiteral("Paint <F5>")) << key;
        }
        return {wholeCount, part};
    }
};
