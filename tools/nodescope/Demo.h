// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef DEMO_H
#define DEMO_H

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class MainWindow;
class QLineEdit;

/**
 * A short demonstration of the open scene: walks through a few nodes, types a number into an editor as a
 * user would, and takes it back.
 */
class Demo : public QObject
{
    Q_OBJECT

public:
    explicit Demo(MainWindow *window);

    void start();

Q_SIGNALS:
    /// @p worked: the number went into the scene and undo brought the old one back.
    void finished(bool worked);

private:
    void nextStep();
    bool selectNode(const QVector<int> &path);
    bool typeNumber();
    bool undo();
    QLineEdit *numberEdit() const;

    MainWindow *m_window;
    std::vector<std::function<bool()>> m_steps;
    std::size_t m_next = 0;
    QTimer m_timer;
};

#endif
