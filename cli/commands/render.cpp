#include "cli/commands/commands.h"

#include "app/text/markdownrenderer.h"
#include "cli/textfile.h"

namespace vl::cli {

ExitStatus runRender(const Arguments &arguments, Console &console)
{
    const app::Result<QString> text = readInputText(arguments.at(0));
    if (!text)
        return console.fail(text.message());
    console.begin(Arguments::tr("Rendering…"));
    console.write(app::MarkdownRenderer::toHtml(*text));
    return ExitStatus::Done;
}

} // namespace vl::cli
