#pragma once
// A main window started on a settings store and a work folder of its own, with scripted
// answers to its questions.
#include "core/prompter.h"
#include "core/settings.h"
#include "ui/mainwindow.h"

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
