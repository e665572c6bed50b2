#pragma once

#include "app/models/repairflow.h"

#include <QtWidgets/QDialog>

class QBoxLayout;
class QGridLayout;
class QListWidget;

namespace vl::desktop {

class DifferenceView;

/// Tells why a project does not load, and what can be done about it.
class DamagedProjectDialog final : public QDialog
{
    Q_OBJECT

public:
    DamagedProjectDialog(app::DamagedProject project, QWidget *parent);

    app::DamageAnswer answer() const { return m_answer; }

private:
    void addFiles(QLayout *layout);
    void addAnswers(QBoxLayout *layout);
    void addAnswer(QGridLayout *answers, app::DamageAnswer answer, const QString &text,
                   const QString &explanation);
    void showFile(int row);
    const app::ConflictingCopy *conflictOf(const QString &path) const;
    QString rowOf(const app::LeftOutFile &file) const;
    QString detailsOf(const app::LeftOutFile &file) const;

    app::DamagedProject m_project;
    app::DamageAnswer m_answer = app::DamageAnswer::Close;
    QListWidget *m_files = nullptr;
    DifferenceView *m_details = nullptr;
};

} // namespace vl::desktop
