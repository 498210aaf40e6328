#pragma once
// A main window started on a settings store and a work folder of its own, with scripted
// answers to its questions.
#include "core/prompter.h"
#include "core/settings.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "ui/featdialogdock.h"
#include "ui/mainwindow.h"

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

struct WindowFixture : ::testing::Test {
    QTemporaryDir dir;
    std::unique_ptr<tf::SettingsStore> store;
    tf::ScriptedPrompter prompter;
    std::unique_ptr<tf::ui::MainWindow> window;

    void SetUp() override
    {
        store = std::make_unique<tf::SettingsStore>(dir.filePath(QStringLiteral("settings.ini")));
        store->Put_Setting(QStringLiteral("Settings"), QStringLiteral("PDirTemp"), dir.filePath(QStringLiteral("temp")));
        store->Put_Setting(QStringLiteral("Common"), QStringLiteral("Language"), 1);
    }
    void TearDown() override
    {
        window.reset();
        tf::setLanguage(tf::Language::German);
    }
    void start()
    {
        window = std::make_unique<tf::ui::MainWindow>();
        window->session().setPrompter(&prompter);
        window->startUp(*store);
        window->show();
    }
    template <typename T> T *child(const char *name) { return window->findChild<T *>(QLatin1String(name)); }
    QListWidget *typeList() { return child<QListWidget>("ListBoxType"); }
    QPushButton *button(const char *name) { return child<QPushButton>(name); }
    QPushButton *paintButton() { return button("BtnPaint"); }
    tf::ui::FeatDialogDock *options() { return window->findChild<tf::ui::FeatDialogDock *>(); }
    // Chooses the type of `key` as a user would: its group from the menu, then its row in the
    // type list. The group remembers its last row, and a row that is current already gives no
    // change of row, so the list's click follows as the list gives it.
    void choose(const char *key)
    {
        const auto where = tf::findType(QString::fromUtf8(key));
        ASSERT_TRUE(where) << key;
        tf::mn_Grafmodes(window->session(), where->group);
        QApplication::processEvents();
        typeList()->setCurrentRow(where->listIndex);
        tf::ListBoxType_Click(window->session(), where->listIndex);
        QApplication::processEvents();
    }
    QString outFile() const { return dir.filePath(QStringLiteral("out.png")); }
    // Runs the program with `args` and answers the picture it wrote to outFile().
    QImage writtenBy(const QStringList &args)
    {
        QProcess cli;
        cli.start(QStringLiteral(TF_EXE), args);
        EXPECT_TRUE(cli.waitForFinished(60000));
        EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
        return QImage(outFile()).convertToFormat(QImage::Format_RGB32);
    }
};

// A window started before each test.
struct StartedWindow : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
    }
};

// A picture with detail in every corner, for filters to change visibly.
inline QImage photoLike(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            img.setPixel(x, y, qRgb(x * 255 / w, y * 255 / h, (x ^ y) & 255));
    return img;
}

// Saves a picture of `w` as NAME.png into the folder TF_SCREENSHOTS names, when it is set.
inline void screenshot(QWidget &w, const char *name)
{
    const QString dir = qEnvironmentVariable("TF_SCREENSHOTS");
    if (dir.isEmpty()) return;
    w.show();
    QApplication::processEvents();
    w.grab().save(dir + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
}
