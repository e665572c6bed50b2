#include "desktop/shell/dockstyle.h"

namespace vl::desktop {

QString dockStyleSheet()
{
    return QStringLiteral(R"(
ads--CDockContainerWidget { background: palette(window); }
ads--CDockContainerWidget ads--CDockSplitter::handle { background: palette(window); }
ads--CDockContainerWidget ads--CDockSplitter::handle:horizontal {
    border-left: 1px solid palette(mid);
}
ads--CDockContainerWidget ads--CDockSplitter::handle:vertical {
    border-top: 1px solid palette(mid);
}
ads--CDockAreaWidget { background: palette(window); border: none; }
ads--CDockWidget { background: palette(window); border: none; }
ads--CDockAreaTitleBar {
    background: palette(window);
    border-bottom: 1px solid palette(mid);
    padding: 0px;
}
ads--CDockWidgetTab {
    background: palette(window);
    border-style: solid;
    border-color: transparent;
    border-width: 2px 0px 0px 0px;
    padding: 2px 6px 3px 6px;
}
ads--CDockWidgetTab QLabel { color: palette(text); }
ads--CDockWidgetTab[activeTab="true"] {
    background: palette(base);
    border-color: palette(mid);
}
ads--CDockWidgetTab[focused="true"] { border-color: palette(highlight); }
ads--CTitleBarButton { padding: 0px; }
#tabCloseButton { background: none; border: none; padding: 0px 0px 0px 4px; }
#tabCloseButton:hover, #floatingTitleCloseButton:hover, #floatingTitleMaximizeButton:hover {
    background: palette(midlight);
}
#tabsMenuButton::menu-indicator { image: none; }
#floatingTitleCloseButton, #floatingTitleMaximizeButton { border: none; margin: 6px 3px; }
QScrollArea#dockWidgetScrollArea { padding: 0px; border: none; }
)");
}

} // namespace vl::desktop
