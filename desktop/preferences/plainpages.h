#pragma once

#include "desktop/preferences/preferencespage.h"

namespace vl::desktop {

/// How the program starts, and the language it speaks.
class GeneralPage final : public PreferencesPage
{
    Q_OBJECT

public:
    GeneralPage(const PreferencesContext &context, QWidget *parent);
};

/// The look of the manuscript, and the comforts of typing.
class EditorPage final : public PreferencesPage
{
    Q_OBJECT

public:
    EditorPage(const PreferencesContext &context, QWidget *parent);
};

/// What is backed up without being asked, and where it lies.
class BackupsPage final : public PreferencesPage
{
    Q_OBJECT

public:
    BackupsPage(const PreferencesContext &context, QWidget *parent);

private:
    void addPlace();
    void choose();
    /// Where they are made now.
    QString folder() const;
};

/// Whether new versions are looked for, and when that was done last.
class UpdatesPage final : public PreferencesPage
{
    Q_OBJECT

public:
    UpdatesPage(const PreferencesContext &context, QWidget *parent);
};

} // namespace vl::desktop
