#pragma once

#include <QtWidgets/QDialog>

namespace vl::desktop {

/// Tells the version, whose work the program stands on, and where it keeps its files.
class AboutDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent);

private:
    QWidget *makeHead();
    QWidget *makeFolders();
    QWidget *makeLicences();
};

} // namespace vl::desktop
