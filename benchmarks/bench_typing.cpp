// How long a key press takes until the text is painted again, in a document of 250 000 words of a
// project with 10 000 objects: in the window's editor and, beside it, in the toolkit's own fields
// with the same text and font. Then what ten thousand bursts of typing keep in memory, and how long
// undoing and redoing one takes.

#include "app/base/settings.h"
#include "app/base/wordcount.h"
#include "app/models/documentoperations.h"
#include "benchmarks/support/generatedproject.h"
#include "core/commands/documentcommands.h"
#include "desktop/editor/livedocument.h"
#include "desktop/panels/editortextwidget.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/shell/theme.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QKeyEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTextEdit>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <vector>

namespace {

using namespace vl;

constexpr qsizetype leastWords = 250'000;
constexpr int keys = 500;
constexpr int bursts = 10'000;

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

double at(std::vector<double> values, double part)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(double(values.size()) * part))];
}

/// Sees when a widget has been painted where its caret stands.
class PaintWatch final : public QObject
{
public:
    PaintWatch(QWidget *widget, std::function<QRect()> caret)
        : m_caret(std::move(caret))
    {
        widget->installEventFilter(this);
    }
    bool isPainted = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            isPainted |= static_cast<QPaintEvent *>(event)->region().boundingRect().contains(
                m_caret().center());
        return false;
    }

private:
    std::function<QRect()> m_caret;
};

/// Prose with the marks of Markdown sown in.
QString prose(const core::Project &project)
{
    QString text;
    qsizetype words = 0;
    for (int round = 0; words < leastWords; ++round) {
        for (const core::Document *document : project.all<core::Document>()) {
            if (words >= leastWords)
                break;
            QString body = document->body();
            if (words % 7 == 0)
                text += QStringLiteral("## ") + document->title() + QStringLiteral("\n\n");
            body.replace(QStringLiteral(", "), QStringLiteral(", *as it were*, "));
            text += body;
            words += app::countWords(body);
        }
    }
    return text;
}

template<typename Field>
void typeKeys(const char *name, const char *where, Field *field)
{
    const QString line = QStringLiteral("The quick brown fox, *so* they say, jumps over it. ");
    PaintWatch watch(field->viewport(), [field] { return field->cursorRect(); });
    const int before = field->document()->characterCount();
    std::vector<double> times;
    for (int i = 0; i < keys; ++i) {
        const QChar c = line[i % line.size()];
        const bool isReturn = i % 250 == 249;
        QKeyEvent press(QEvent::KeyPress, isReturn ? Qt::Key_Return : Qt::Key_A, Qt::NoModifier,
                        isReturn ? QStringLiteral("\r") : QString(c));
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
        watch.isPainted = false;
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::sendEvent(field, &press);
        while (!watch.isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        times.push_back(milliseconds(timer));
        QCoreApplication::sendEvent(field, &release);
        QCoreApplication::processEvents();
    }
    if (field->document()->characterCount() != before + keys)
        std::printf("only %d of %d keys came\n", field->document()->characterCount() - before,
                    keys);
    std::printf("%-15s %-7s median %6.2f ms   95th percentile %6.2f ms   most %6.2f ms\n", name,
                where, at(times, 0.5), at(times, 0.95), at(times, 1));
}

template<typename Field>
void typeEverywhere(const char *name, Field *field)
{
    field->setFocus();
    for (const auto &[where, part] :
         {std::pair("start", 0.0), std::pair("middle", 0.5), std::pair("end", 1.0)}) {
        QTextCursor cursor = field->textCursor();
        cursor.setPosition(int((field->document()->characterCount() - 1) * part));
        // Into the middle of a paragraph of some length.
        while (cursor.block().length() < 600
               && cursor.movePosition(part < 0.9 ? QTextCursor::NextBlock
                                                 : QTextCursor::PreviousBlock)) {
        }
        cursor.setPosition(cursor.block().position() + cursor.block().length() / 2);
        field->setTextCursor(cursor);
        field->ensureCursorVisible();
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        typeKeys(name, where, field);
    }
}

template<typename Field>
void typeInBareField(const char *name, const QString &text, const desktop::EditorTextWidget &like)
{
    QMainWindow window;
    auto *field = new Field(&window);
    field->setFont(like.font());
    field->setUndoRedoEnabled(false);
    window.setCentralWidget(field);
    window.resize(like.width(), like.height());
    field->setPlainText(text);
    window.show();
    QCoreApplication::processEvents();
    typeEverywhere(name, field);
}

double heldMegabytes()
{
    return double(mallinfo2().uordblks) / 1e6;
}

void keepBursts(app::Workspace &workspace, core::Document &document)
{
    // What others write is followed in the open text, which would be measured along.
    const QList<core::Document *> all = [&] {
        const auto documents = workspace.project().all<core::Document>();
        return QList<core::Document *>(documents.begin(), documents.end());
    }();
    workspace.select(all.last()->id());
    const double before = heldMegabytes();
    const QString sentence = QStringLiteral("and then she counted them all once more, ");
    const qsizetype step = document.body().size() / bursts;
    for (int i = 0; i < bursts; ++i) {
        QString body = document.body();
        body.insert(i * step, sentence.repeated(5));
        workspace.push<core::SetDocumentBodyCommand>(document, body);
    }
    std::printf("%d bursts of 40 words in the history and in the text: %.1f MB\n", bursts,
                heldMegabytes() - before);

    workspace.select(document.id());
    const auto walk = [&](const char *name, auto step) {
        std::vector<double> times;
        for (int i = 0; i < 300; ++i) {
            QElapsedTimer timer;
            timer.start();
            step();
            QCoreApplication::processEvents();
            times.push_back(milliseconds(timer));
        }
        std::printf("%s one, painted: median %.2f ms   95th percentile %.2f ms\n", name,
                    at(times, 0.5), at(times, 0.95));
    };
    walk("undoing", [&] { workspace.undo(); });
    walk("redoing", [&] { workspace.redo(); });
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0"); // paint at once, do not gather
    QApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    desktop::applyTheme(desktop::themeNamed(QStringLiteral("Light")));
    desktop::MainWindow window(settings);
    window.resize(1280, 800);

    app::Workspace &workspace = window.workspace();
    auto project = std::make_unique<app::OpenProject>();
    const std::unique_ptr<core::Project> made =
        bench::generateProject(argc > 1 ? QByteArray(argv[1]).toInt() : 10'000);
    const QString text = prose(*made);
    for (const core::ContentId &id : made->ids())
        project->project().add(made->take(id));
    workspace.replaceProject(std::move(project));
    window.show();
    core::Document &document = *workspace.project().all<core::Document>().front();
    document.setBody(text);
    std::printf("%lld words, %lld objects in the project\n", qlonglong(app::countWords(text)),
                qlonglong(workspace.project().size()));

    QElapsedTimer timer;
    timer.start();
    workspace.select(document.id());
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    std::printf("opening the document: %.1f ms\n", milliseconds(timer));

    auto *editor = window.findChild<desktop::EditorTextWidget *>();
    typeEverywhere("editor", editor);
    workspace.flush();
    if (document.body() != editor->text()) {
        std::printf("the document is not what was typed\n");
        return 1;
    }
    typeInBareField<QPlainTextEdit>("QPlainTextEdit", text, *editor);
    typeInBareField<QTextEdit>("QTextEdit", text, *editor);
    keepBursts(workspace, document);
    return document.body() == editor->text() ? 0 : 1;
}
