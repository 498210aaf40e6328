#pragma once
// A main window started on a settings store and a work folder of its own, with scripted
// answers to its questions.
#include "core/prompter.h"
#include "core/settings.h"
#include "ui/mainwindow.h"

#include <QApplication>
#include <QImage>
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
