#pragma once

#include "app/base/settings.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/folders.h"

#include <QtCore/QTemporaryDir>

#include <random>

class QUrl;

namespace vl::desktop {
class EditorTextWidget;
}

namespace vl::test {

/// Chance that comes again with its seed, on every machine.
class Dice
{
public:
    explicit Dice(quint32 seed)
        : m_engine(seed)
    {
    }
    /// From 0 to count - 1; count is above 0.
    int below(int count) { return int(m_engine() % quint32(count)); }
    bool oneIn(int count) { return below(count) == 0; }
    template<typename List>
    auto of(const List &list)
    {
        return *std::next(std::begin(list), below(int(std::size(list))));
    }
    QPoint in(const QRect &area)
    {
        const int x = below(qMax(1, area.width()));
        return area.topLeft() + QPoint(x, below(qMax(1, area.height())));
    }

private:
    std::mt19937 m_engine;
};

/// Uses the program as nobody would: any key, button, menu and file, in any order. From time to
/// time it looks whether everything that should always be so still is.
class Rambler final : public QObject
{
    Q_OBJECT

public:
    /// Opens a copy of the project in a window of its own. `tells` prints each step as it is done.
    Rambler(quint32 seed, const QString &project, bool tells);
    ~Rambler() override;

    /// Does so many steps and looks after each `stride` of them; what is wrong then, empty when all
    /// is well. Ends at the first.
    QString walk(int steps, int stride);
    /// The last steps, a line each.
    QString trail() const { return m_trail.join(u'\n'); }

    /// In place of a browser or a file manager.
    Q_SLOT void visit(const QUrl &url);

private:
    struct Kind;
    static const QList<Kind> &kinds();
    void step();
    void note(const QString &text);

    // What can be done.
    void type();
    void pressKeys();
    void triggerAction();
    void click();
    void drag();
    void useControl();
    void dropRows();
    void fillClipboard();
    void select();
    void undoOrRedo();
    void save();
    void changeOutside();
    void resize();
    void wait();

    // How it is done.
    void attend();
    void attendTo(QWidget *window);
    QWidget *anyWindow();
    QPoint anyPlace(QWidget *window);
    QString anyText();
    QString anyPath();
    core::ContentId anyObject();
    void settle();

    // What must be so.
    QString lossAtOnce() const;
    QStringList faults();
    QStringList faultsOfHistory();
    QStringList faultsOfFiles();
    QStringList faultsOfTrees() const;
    QStringList faultsOfWindow() const;
    void startProject();
    bool isWordThere() const;

    QTemporaryDir m_dir;
    app::Settings m_settings;
    desktop::MainWindow m_window;
    app::Workspace &m_workspace;
    desktop::EditorTextWidget *m_text;
    quint32 m_seed;
    Dice m_dice;
    FileMap m_start;          ///< of the open project, when its history was empty
    bool m_isTouched = false; ///< others changed files of the open project
    QString m_word;           ///< that must be in the project
    QStringList m_trail;
    int m_steps = 0;
    int m_level = 0;         ///< of the event loop in which a question is being answered
    bool m_isEnding = false; ///< whatever asks is closed
    bool m_tells;
};

} // namespace vl::test
