#pragma once
// The application's main window. The screens arrive one by one; for now it frames the
// application and says where the user's data lives.

#include <QMainWindow>

namespace vantello::app {

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
};

}  // namespace vantello::app
