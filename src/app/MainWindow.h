#pragma once

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <map>

class QLabel;
class QMdiArea;
class QPushButton;

// "anamenu": the frame whose menu is the only way to the screens. A menu item is enabled once
// its screen is known; choosing it opens that screen once and brings it forward afterwards.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    using ScreenFactory = std::function<QWidget *()>;
    void addScreen(const QString &itemName, ScreenFactory factory);
    QAction *menuItem(const QString &itemName) const;
    QMdiArea *area() const { return m_area; }

signals:
    void shown();

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Screen
    {
        ScreenFactory factory;
        QPointer<QWidget> instance;
    };
    void buildMenu();
    void buildSettingsNotice();
    void showSettingsNotice();
    void open(const QString &itemName);

    QMdiArea *m_area = nullptr;
    QLabel *m_settingsNotice = nullptr;
    QPushButton *m_settingsButton = nullptr;
    std::map<QString, Screen> m_screens;
};
