#pragma once

#include <QMainWindow>

namespace tf::ui {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
};

} // namespace tf::ui
