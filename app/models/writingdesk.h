#pragma once

#include "app/models/writingday.h"
#include "core/id.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// Where a writer was in a text, in UTF-16 units of the text as shown.
struct WritingPlace
{
    qsizetype caret = 0;
    qsizetype anchor = 0; ///< the other end of the selection
    qsizetype top = 0;    ///< the start of the topmost line that shows

    bool operator==(const WritingPlace &) const = default;
};

/// What the program remembers of the writing in one project without it being a part of it: where
/// the writer was in each document, which one was open, and the words of each day. It lies in a
/// file of this user, one a project, and may be lost without harm: nothing here reports an error.
class WritingDesk
{
public:
    /// The desks lie in this folder, which need not exist; an empty one keeps nothing.
    explicit WritingDesk(QString folder);

    /// Remembers of the project at this path from now on; an empty path keeps nothing. What was on
    /// the desk before stays where it was.
    void open(const QString &projectPath);
    /// The project lies at another path now and takes everything along.
    void moveTo(const QString &projectPath);
    /// Writes what changed.
    void save();

    WritingPlace place(const core::ContentId &id) const;
    /// Remembers a place; of a bounded number of documents, those of longest ago are forgotten.
    void setPlace(const core::ContentId &id, const WritingPlace &place);
    const core::ContentId &lastDocument() const { return m_lastDocument; }
    void setLastDocument(const core::ContentId &id);

    WritingDay &day() { return m_day; }
    /// The day's words changed.
    void touch() { m_isChanged = true; }

private:
    struct Record
    {
        core::ContentId id;
        WritingPlace place;
    };

    QString file() const;
    void read();

    QString m_folder;
    QString m_projectPath;
    QList<Record> m_places; ///< the latest first
    core::ContentId m_lastDocument;
    WritingDay m_day;
    bool m_isChanged = false;
};

} // namespace vl::app
