#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QLayout;
class QStackedWidget;

namespace vl::desktop {

class DistractionFree;
class EditorPictures;
class EditorSession;
class EditorTextWidget;
class FindStrip;
class PageView;

/// Where the selected document is written: its text, a strip to find and replace in it, and its
/// numbers at the foot.
class EditorPanel final : public QWidget
{
    Q_OBJECT

public:
    EditorPanel(const PanelContext &context, QWidget *parent);
    ~EditorPanel() override;

    EditorSession *session() const { return m_session; }
    EditorTextWidget *text() const { return m_text; }

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeEmptyPage();
    void buildFooter(QLayout *layout);
    void bindActions();
    void showOpened();
    void showTitle();
    void updateCounts();
    void restyle();
    void splitAtCaret();
    void showMenu(const QPoint &globalPosition);
    void insertPictureFiles(const QStringList &files);
    void insertPicture(const QImage &image);
    void setDistractionFree(bool isOn);
    void showPages(bool isOn);
    void fillPages();
    void setUpPages();

    PanelContext m_context;
    EditorTextWidget *m_text;
    EditorSession *m_session;
    FindStrip *m_strip;
    EditorPictures *m_pictures;
    QStackedWidget *m_pages;
    PageView *m_pageView;
    QTimer m_pageFill; ///< fills the pages anew after a pause of the edits
    DistractionFree *m_distractionFree = nullptr; ///< while it has the text
    QLabel *m_title;
    QLabel *m_counts;
};

} // namespace vl::desktop
