#pragma once

#include <QtWidgets/QDialog>

namespace vl::app {
struct StorageLocations;
}

namespace vl::desktop {

/// Tells the version, whose work the program stands on, and where it keeps its files.
class AboutDialog final : public QDialog
{
    Q_OBJECT

public:
    AboutDialog(const app::StorageLocations &locations, QWidget *parent);

private:
    QWidget *makeHead();
    QWidget *makeFolders(const app::StorageLocations &locations);
    QWidget *makeLicences();
};

} // namespace vl::desktop
