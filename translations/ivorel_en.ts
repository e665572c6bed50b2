<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;New Project…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>Open Project Fol&amp;der…</source>
        <translation>Open Project Fol&amp;der…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>Save as Fo&amp;lder…</source>
        <translation>Save as Fo&amp;lder…</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Document…</source>
        <translation>Document…</translation>
    </message>
    <message>
        <source>Note…</source>
        <translation>Note…</translation>
    </message>
    <message>
        <source>Document Inside</source>
        <translation>Document Inside</translation>
    </message>
    <message>
        <source>Split Document at Cursor</source>
        <translation>Split Document at Cursor</translation>
    </message>
    <message>
        <source>Move Document Up</source>
        <translation>Move Document Up</translation>
    </message>
    <message>
        <source>Move Document Down</source>
        <translation>Move Document Down</translation>
    </message>
    <message>
        <source>Promote Document</source>
        <translation>Promote Document</translation>
    </message>
    <message>
        <source>Demote</source>
        <translation>Demote</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Reset Layout</translation>
    </message>
    <message>
        <source>About Ivorel</source>
        <translation>About Ivorel</translation>
    </message>
    <message>
        <source>&amp;Quick Open…</source>
        <translation>&amp;Quick Open…</translation>
    </message>
    <message>
        <source>Save as &amp;Template…</source>
        <translation>Save as &amp;Template…</translation>
    </message>
    <message>
        <source>Save as Content &amp;Pack…</source>
        <translation>Save as Content &amp;Pack…</translation>
    </message>
    <message>
        <source>Apply &amp;Content Pack…</source>
        <translation>Apply &amp;Content Pack…</translation>
    </message>
    <message>
        <source>&amp;Back Up Project Now</source>
        <translation>&amp;Back Up Project Now</translation>
    </message>
    <message>
        <source>Check for E&amp;xternal Changes…</source>
        <translation>Check for E&amp;xternal Changes…</translation>
    </message>
    <message>
        <source>Mounted &amp;Libraries…</source>
        <translation>Mounted &amp;Libraries…</translation>
    </message>
    <message>
        <source>Mana&amp;ge Audiences…</source>
        <translation>Mana&amp;ge Audiences…</translation>
    </message>
    <message>
        <source>Open PD&amp;F…</source>
        <translation>Open PD&amp;F…</translation>
    </message>
    <message>
        <source>&amp;Plain Text…</source>
        <translation>&amp;Plain Text…</translation>
    </message>
    <message>
        <source>&amp;Obsidian Vault…</source>
        <translation>&amp;Obsidian Vault…</translation>
    </message>
    <message>
        <source>&amp;yWriter…</source>
        <translation>&amp;yWriter…</translation>
    </message>
    <message>
        <source>Sc&amp;rivener…</source>
        <translation>Sc&amp;rivener…</translation>
    </message>
    <message>
        <source>&amp;Word Document…</source>
        <translation>&amp;Word Document…</translation>
    </message>
    <message>
        <source>&amp;Notion Export…</source>
        <translation>&amp;Notion Export…</translation>
    </message>
    <message>
        <source>Import a Notion “Export → Markdown &amp; CSV” folder, preserving pages and folders</source>
        <translation>Import a Notion “Export → Markdown &amp; CSV” folder, preserving pages and folders</translation>
    </message>
    <message>
        <source>&amp;Manuskript…</source>
        <translation>&amp;Manuskript…</translation>
    </message>
    <message>
        <source>Convert a &amp;Folder with AI…</source>
        <translation>Convert a &amp;Folder with AI…</translation>
    </message>
    <message>
        <source>Convert an entire folder of files into this project with your AI provider — entities, timeline, sheets, media, and more</source>
        <translation>Convert an entire folder of files into this project with your AI provider — entities, timeline, sheets, media, and more</translation>
    </message>
    <message>
        <source>&amp;Manuscript…</source>
        <translation>&amp;Manuscript…</translation>
    </message>
    <message>
        <source>&amp;Screenplay…</source>
        <translation>&amp;Screenplay…</translation>
    </message>
    <message>
        <source>&amp;Website…</source>
        <translation>&amp;Website…</translation>
    </message>
    <message>
        <source>&amp;Health Report…</source>
        <translation>&amp;Health Report…</translation>
    </message>
    <message>
        <source>Export a manuscript-health report — statistics, readability, dialogue balance, point-of-view balance, style issues, and world coverage — as Markdown or HTML</source>
        <translation>Export a manuscript-health report — statistics, readability, dialogue balance, point-of-view balance, style issues, and world coverage — as Markdown or HTML</translation>
    </message>
    <message>
        <source>&amp;Clear Recent</source>
        <translation>&amp;Clear Recent</translation>
    </message>
    <message>
        <source>Q&amp;uit</source>
        <translation>Q&amp;uit</translation>
    </message>
    <message>
        <source>&amp;Find &amp;&amp; Replace…</source>
        <translation>&amp;Find &amp;&amp; Replace…</translation>
    </message>
    <message>
        <source>&amp;Replace…</source>
        <translation>&amp;Replace…</translation>
    </message>
    <message>
        <source>Find in &amp;Project…</source>
        <translation>Find in &amp;Project…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message>
        <source>Task for Document…</source>
        <translation>Task for Document…</translation>
    </message>
    <message>
        <source>Change Kind…</source>
        <translation>Change Kind…</translation>
    </message>
    <message>
        <source>Show Unsupported Claims…</source>
        <translation>Show Unsupported Claims…</translation>
    </message>
    <message>
        <source>Version History…</source>
        <translation>Version History…</translation>
    </message>
    <message>
        <source>Next Mention</source>
        <translation>Next Mention</translation>
    </message>
    <message>
        <source>Previous Mention</source>
        <translation>Previous Mention</translation>
    </message>
    <message>
        <source>Today’s Note</source>
        <translation>Today’s Note</translation>
    </message>
    <message>
        <source>&amp;Distraction-Free Mode</source>
        <translation>&amp;Distraction-Free Mode</translation>
    </message>
    <message>
        <source>&amp;Page Layout View</source>
        <translation>&amp;Page Layout View</translation>
    </message>
    <message>
        <source>&amp;Save Current Layout As…</source>
        <translation>&amp;Save Current Layout As…</translation>
    </message>
    <message>
        <source>&amp;Delete Perspective…</source>
        <translation>&amp;Delete Perspective…</translation>
    </message>
    <message>
        <source>Ne&amp;xt Panel</source>
        <translation>Ne&amp;xt Panel</translation>
    </message>
    <message>
        <source>Pre&amp;vious Panel</source>
        <translation>Pre&amp;vious Panel</translation>
    </message>
    <message>
        <source>AI &amp;Settings…</source>
        <translation>AI &amp;Settings…</translation>
    </message>
    <message>
        <source>Configure your AI provider — endpoint, API key, and model</source>
        <translation>Configure your AI provider — endpoint, API key, and model</translation>
    </message>
    <message>
        <source>Manage &amp;Personas…</source>
        <translation>Manage &amp;Personas…</translation>
    </message>
    <message>
        <source>Manage AI &amp;Commands…</source>
        <translation>Manage AI &amp;Commands…</translation>
    </message>
    <message>
        <source>Add, edit, or remove reusable AI commands — named instructions you can apply to a selection, batch across documents, or chain</source>
        <translation>Add, edit, or remove reusable AI commands — named instructions you can apply to a selection, batch across documents, or chain</translation>
    </message>
    <message>
        <source>&amp;Build World Index</source>
        <translation>&amp;Build World Index</translation>
    </message>
    <message>
        <source>As&amp;k Your World…</source>
        <translation>As&amp;k Your World…</translation>
    </message>
    <message>
        <source>&amp;Find Similar Entities…</source>
        <translation>&amp;Find Similar Entities…</translation>
    </message>
    <message>
        <source>Se&amp;mantic Search…</source>
        <translation>Se&amp;mantic Search…</translation>
    </message>
    <message>
        <source>Search your Codex by meaning or mood — type a phrase and find the most semantically related entities (needs a built World Index)</source>
        <translation>Search your Codex by meaning or mood — type a phrase and find the most semantically related entities (needs a built World Index)</translation>
    </message>
    <message>
        <source>Generate &amp;Codex from Manuscript…</source>
        <translation>Generate &amp;Codex from Manuscript…</translation>
    </message>
    <message>
        <source>Let AI read your manuscript and propose the worldbuilding entities it mentions but your Codex is missing — review the suggestions and add the ones you want</source>
        <translation>Let AI read your manuscript and propose the worldbuilding entities it mentions but your Codex is missing — review the suggestions and add the ones you want</translation>
    </message>
    <message>
        <source>Ask an A&amp;gent…</source>
        <translation>Ask an A&amp;gent…</translation>
    </message>
    <message>
        <source>&amp;Generate Image…</source>
        <translation>&amp;Generate Image…</translation>
    </message>
    <message>
        <source>Generate &amp;Speech…</source>
        <translation>Generate &amp;Speech…</translation>
    </message>
    <message>
        <source>&amp;Apply AI Command…</source>
        <translation>&amp;Apply AI Command…</translation>
    </message>
    <message>
        <source>Batch AI Co&amp;mmand…</source>
        <translation>Batch AI Co&amp;mmand…</translation>
    </message>
    <message>
        <source>Run Command C&amp;hain…</source>
        <translation>Run Command C&amp;hain…</translation>
    </message>
    <message>
        <source>Token &amp;Usage…</source>
        <translation>Token &amp;Usage…</translation>
    </message>
    <message>
        <source>&amp;Welcome…</source>
        <translation>&amp;Welcome…</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Check for &amp;Updates…</translation>
    </message>
    <message>
        <source>Connect Claude &amp;Desktop…</source>
        <translation>Connect Claude &amp;Desktop…</translation>
    </message>
    <message>
        <source>Bac&amp;kups…</source>
        <translation>Bac&amp;kups…</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Find Next</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Find Previous</translation>
    </message>
    <message>
        <source>Recently &amp;Deleted…</source>
        <translation>Recently &amp;Deleted…</translation>
    </message>
    <message>
        <source>Unsaved &amp;Work…</source>
        <translation>Unsaved &amp;Work…</translation>
    </message>
    <message>
        <source>&amp;Float Panel</source>
        <translation>&amp;Float Panel</translation>
    </message>
    <message>
        <source>Doc&amp;k Floating Panels</source>
        <translation>Doc&amp;k Floating Panels</translation>
    </message>
</context>
<context>
    <name>BatchMembers</name>
    <message>
        <source>The texts in "%1" must be strings.</source>
        <translation>The texts in "%1" must be strings.</translation>
    </message>
</context>
<context>
    <name>ContentKinds</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Spreadsheet</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Timeline event</source>
        <translation>Timeline event</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Task</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Random table</source>
        <translation>Random table</translation>
    </message>
    <message>
        <source>Stat block</source>
        <translation>Stat block</translation>
    </message>
</context>
<context>
    <name>FieldTypes</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Yes or no</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choice</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Web address</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>The interface language will change to “%1” when you restart Ivorel.</source>
        <translation>The interface language will change to “%1” when you restart Ivorel.</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>World</source>
        <translation>World</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
</context>
<context>
    <name>PaletteWords</name>
    <message>
        <source>create, start, template</source>
        <translation>create, start, template</translation>
    </message>
    <message>
        <source>load</source>
        <translation>load</translation>
    </message>
    <message>
        <source>load directory</source>
        <translation>load directory</translation>
    </message>
    <message>
        <source>command palette, go to, jump to, search</source>
        <translation>command palette, go to, jump to, search</translation>
    </message>
    <message>
        <source>save a copy, duplicate project</source>
        <translation>save a copy, duplicate project</translation>
    </message>
    <message>
        <source>export project, unpack</source>
        <translation>export project, unpack</translation>
    </message>
    <message>
        <source>backup, snapshot, safety copy</source>
        <translation>backup, snapshot, safety copy</translation>
    </message>
    <message>
        <source>reload, sync, merge, conflicts</source>
        <translation>reload, sync, merge, conflicts</translation>
    </message>
    <message>
        <source>txt, markdown</source>
        <translation>txt, markdown</translation>
    </message>
    <message>
        <source>docx, doc</source>
        <translation>docx, doc</translation>
    </message>
    <message>
        <source>compile, publish, book, docx, epub, pdf, rtf, print</source>
        <translation>compile, publish, book, docx, epub, pdf, rtf, print</translation>
    </message>
    <message>
        <source>script, fountain, fdx</source>
        <translation>script, fountain, fdx</translation>
    </message>
    <message>
        <source>wiki, html, publish</source>
        <translation>wiki, html, publish</translation>
    </message>
    <message>
        <source>statistics, readability, report</source>
        <translation>statistics, readability, report</translation>
    </message>
    <message>
        <source>exit, close</source>
        <translation>exit, close</translation>
    </message>
    <message>
        <source>take back, revert</source>
        <translation>take back, revert</translation>
    </message>
    <message>
        <source>repeat, again</source>
        <translation>repeat, again</translation>
    </message>
    <message>
        <source>search</source>
        <translation>search</translation>
    </message>
    <message>
        <source>substitute, change all</source>
        <translation>substitute, change all</translation>
    </message>
    <message>
        <source>search everywhere, global search, replace everywhere</source>
        <translation>search everywhere, global search, replace everywhere</translation>
    </message>
    <message>
        <source>settings, options, configuration, shortcuts, font</source>
        <translation>settings, options, configuration, shortcuts, font</translation>
    </message>
    <message>
        <source>new scene, new chapter, add</source>
        <translation>new scene, new chapter, add</translation>
    </message>
    <message>
        <source>new child, new scene in chapter</source>
        <translation>new child, new scene in chapter</translation>
    </message>
    <message>
        <source>new note, add</source>
        <translation>new note, add</translation>
    </message>
    <message>
        <source>cut, divide scene</source>
        <translation>cut, divide scene</translation>
    </message>
    <message>
        <source>outdent, move left</source>
        <translation>outdent, move left</translation>
    </message>
    <message>
        <source>indent, nest, move right</source>
        <translation>indent, nest, move right</translation>
    </message>
    <message>
        <source>snapshots, drafts, revisions</source>
        <translation>snapshots, drafts, revisions</translation>
    </message>
    <message>
        <source>journal, diary, daily note</source>
        <translation>journal, diary, daily note</translation>
    </message>
    <message>
        <source>focus mode, zen, full screen, composition mode</source>
        <translation>focus mode, zen, full screen, composition mode</translation>
    </message>
    <message>
        <source>print preview, pages</source>
        <translation>print preview, pages</translation>
    </message>
    <message>
        <source>restore panels, default windows</source>
        <translation>restore panels, default windows</translation>
    </message>
    <message>
        <source>workspace, perspective</source>
        <translation>workspace, perspective</translation>
    </message>
    <message>
        <source>start page, tutorial, sample, example</source>
        <translation>start page, tutorial, sample, example</translation>
    </message>
    <message>
        <source>upgrade, new version</source>
        <translation>upgrade, new version</translation>
    </message>
    <message>
        <source>version, licence, credits, folders</source>
        <translation>version, licence, credits, folders</translation>
    </message>
    <message>
        <source>detach, undock, own window</source>
        <translation>detach, undock, own window</translation>
    </message>
    <message>
        <source>attach, put back</source>
        <translation>attach, put back</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Close %1</translation>
    </message>
    <message>
        <source>Panel area button</source>
        <translation>Panel area button</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Document Info</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Corkboard</source>
        <translation>Corkboard</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>Submissions</source>
        <translation>Submissions</translation>
    </message>
    <message>
        <source>Agenda</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Gallery</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Maps</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Script Console</source>
        <translation>Script Console</translation>
    </message>
    <message>
        <source>AI Chat</source>
        <translation>AI Chat</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Plot Threads</source>
        <translation>Plot Threads</translation>
    </message>
    <message>
        <source>Beat Sheet</source>
        <translation>Beat Sheet</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Screenplay</translation>
    </message>
    <message>
        <source>Relationships</source>
        <translation>Relationships</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Spreadsheet</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Goals</translation>
    </message>
    <message>
        <source>Pacing</source>
        <translation>Pacing</translation>
    </message>
    <message>
        <source>POV Balance</source>
        <translation>POV Balance</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Genre Tools</source>
        <translation>Genre Tools</translation>
    </message>
    <message>
        <source>Random Tables</source>
        <translation>Random Tables</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>Stat Blocks</source>
        <translation>Stat Blocks</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Footnotes</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Languages</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflicts</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Pinned</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tasks</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Tool Bars</source>
        <translation>Tool Bars</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
</context>
<context>
    <name>ProjectTemplates</name>
    <message>
        <source>Blank</source>
        <translation>Blank</translation>
    </message>
    <message>
        <source>Nothing but room to write.</source>
        <translation>Nothing but room to write.</translation>
    </message>
    <message>
        <source>Novel</source>
        <translation>Novel</translation>
    </message>
    <message>
        <source>Three acts with chapters and scenes on a beat sheet, sheets for characters and places, plot threads, and a list for the revision.</source>
        <translation>Three acts with chapters and scenes on a beat sheet, sheets for characters and places, plot threads, and a list for the revision.</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Several books over one world: what is settled, what is promised, and how each character stands at the end of each book.</source>
        <translation>Several books over one world: what is settled, what is promised, and how each character stands at the end of each book.</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Screenplay</translation>
    </message>
    <message>
        <source>Sequences in screenplay form, logline and treatment, cast and locations.</source>
        <translation>Sequences in screenplay form, logline and treatment, cast and locations.</translation>
    </message>
    <message>
        <source>Tabletop Campaign</source>
        <translation>Tabletop Campaign</translation>
    </message>
    <message>
        <source>Sessions, quests and factions, secrets that only the game master sees, and random tables.</source>
        <translation>Sessions, quests and factions, secrets that only the game master sees, and random tables.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>File Folder</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Step up</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Open the combo box selection popup</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Directory not found.
Please verify the correct directory name was given.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File not found.
Please verify the correct file name was given.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 already exists.
Do you want to replace it?</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choose</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>'%1' is write protected.
Do you want to delete it anyway?</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Are you sure you want to delete '%1'?</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Change to detail view mode</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Change to list view mode</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Could not delete directory.</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Create New Folder</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Create a New Folder</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detail View</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Directories</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Directory:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>File Folder</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Find Directory</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Go forward</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Go to the parent directory</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>List View</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>List of places and bookmarks</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My Computer</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Parent Directory</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Recent Places</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Show </translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Show &amp;hidden files</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Invalid filename</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My Computer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>QFontDatabase</name>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Demi Bold</source>
        <translation>Demi Bold</translation>
    </message>
    <message>
        <source>Extra</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>Extra Bold</source>
        <translation>Extra Bold</translation>
    </message>
    <message>
        <source>Extra Light</source>
        <translation>Extra Light</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Thin</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No space left on device</source>
        <translation>No space left on device</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No such file or directory</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Too many open files</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
</context>
<context>
    <name>QKeySequenceEdit</name>
    <message>
        <source>%1, ...</source>
        <translation>%1, ...</translation>
    </message>
    <message>
        <source>Press shortcut</source>
        <translation>Press shortcut</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Close Active Tab</source>
        <translation>Close Active Tab</translation>
    </message>
    <message>
        <source>Close Group</source>
        <translation>Close Group</translation>
    </message>
    <message>
        <source>Close Other Groups</source>
        <translation>Close Other Groups</translation>
    </message>
    <message>
        <source>Close Others</source>
        <translation>Close Others</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Close Tab</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Detach</translation>
    </message>
    <message>
        <source>Detach Group</source>
        <translation>Detach Group</translation>
    </message>
    <message>
        <source>List All Tabs</source>
        <translation>List All Tabs</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Backtab</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>CapsLock</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>F%1</source>
        <translation>F%1</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>NumLock</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>ScrollLock</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>SysReq</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copy &amp;Link Location</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>Themes</name>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>High Contrast</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
</context>
<context>
    <name>vl::app::Assets</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Cannot create project folder: %1</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>Failed to write file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::AutoBackups</name>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>The project folder does not exist: %1</translation>
    </message>
    <message>
        <source>The backup does not hold what was written: %1</source>
        <translation>The backup does not hold what was written: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Could not create the folder for: %1</translation>
    </message>
    <message>
        <source>There is not enough room for a backup in: %1</source>
        <translation>There is not enough room for a backup in: %1</translation>
    </message>
    <message>
        <source>The folder for backups does not exist: %1</source>
        <translation>The folder for backups does not exist: %1</translation>
    </message>
    <message>
        <source>The folder for backups lies in the project itself: %1</source>
        <translation>The folder for backups lies in the project itself: %1</translation>
    </message>
    <message>
        <source>A project that is open cannot be replaced: %1</source>
        <translation>A project that is open cannot be replaced: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupFolder</name>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Could not create the folder for: %1</translation>
    </message>
    <message>
        <source>Could not clear the stale working copy: %1</source>
        <translation>Could not clear the stale working copy: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupOperations</name>
    <message>
        <source>Restore “%1”</source>
        <translation>Restore “%1”</translation>
    </message>
</context>
<context>
    <name>vl::app::BackupsModel</name>
    <message>
        <source>When opened</source>
        <translation>When opened</translation>
    </message>
    <message>
        <source>When closed</source>
        <translation>When closed</translation>
    </message>
    <message>
        <source>Once a day</source>
        <translation>Once a day</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>By hand</translation>
    </message>
    <message>
        <source>Before something took its place</source>
        <translation>Before something took its place</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>damaged</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Made</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Scenes</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
</context>
<context>
    <name>vl::app::Bundle</name>
    <message>
        <source>Could not write the project file: %1</source>
        <translation>Could not write the project file: %1</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>Could not open the project file: %1</translation>
    </message>
    <message>
        <source>Not a valid Ivorel project file: %1</source>
        <translation>Not a valid Ivorel project file: %1</translation>
    </message>
    <message>
        <source>The folder is not an Ivorel project (no project.json): %1</source>
        <translation>The folder is not an Ivorel project (no project.json): %1</translation>
    </message>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>Could not read a project file: %1</translation>
    </message>
    <message>
        <source>The project has more than one file can hold (65535 files, 4 GiB); save it as a folder instead. The file was left as it is: %1</source>
        <translation>The project has more than one file can hold (65535 files, 4 GiB); save it as a folder instead. The file was left as it is: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Could not create the folder for: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>Could not write a project file: %1</translation>
    </message>
    <message>
        <source>The extraction folder is not empty: %1</source>
        <translation>The extraction folder is not empty: %1</translation>
    </message>
    <message>
        <source>Could not create the folder: %1</source>
        <translation>Could not create the folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::BundleProjectStore</name>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>The project changed outside Ivorel since you opened it.</translation>
    </message>
    <message>
        <source>The project file is gone: %1</source>
        <translation>The project file is gone: %1</translation>
    </message>
    <message>
        <source>%1 The file as it was before its unsaved changes were put back is kept as: %2</source>
        <translation>%1 The file as it was before its unsaved changes were put back is kept as: %2</translation>
    </message>
</context>
<context>
    <name>vl::app::CalendarText</name>
    <message>
        <source>%1 %2, Year %3</source>
        <extracomment>A full date: %1 is the day, %2 the month, %3 the year. Typed dates are read back from this form, so keep the word for "Year" equal to the one translated below.</extracomment>
        <translation>%1 %2, Year %3</translation>
    </message>
    <message>
        <source>Year</source>
        <extracomment>The word before the year in a full date such as "3 March, Year 1270".</extracomment>
        <translation>Year</translation>
    </message>
</context>
<context>
    <name>vl::app::CampaignTemplate</name>
    <message>
        <source>People</source>
        <translation>People</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Player characters</source>
        <translation>Player characters</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Class</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Bonds</source>
        <translation>Bonds</translation>
    </message>
    <message>
        <source>Whom and what they would not give up.</source>
        <translation>Whom and what they would not give up.</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Goal</translation>
    </message>
    <message>
        <source>Other characters</source>
        <translation>Other characters</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>Attitude</translation>
    </message>
    <message>
        <source>Friendly</source>
        <translation>Friendly</translation>
    </message>
    <message>
        <source>Indifferent</source>
        <translation>Indifferent</translation>
    </message>
    <message>
        <source>Hostile</source>
        <translation>Hostile</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>One sentence that you can play at the table.</source>
        <translation>One sentence that you can play at the table.</translation>
    </message>
    <message>
        <source>Wants</source>
        <translation>Wants</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Found at</source>
        <translation>Found at</translation>
    </message>
    <message>
        <source>A place of the codex.</source>
        <translation>A place of the codex.</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Places</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Settlement</source>
        <translation>Settlement</translation>
    </message>
    <message>
        <source>Dungeon</source>
        <translation>Dungeon</translation>
    </message>
    <message>
        <source>Landmark</source>
        <translation>Landmark</translation>
    </message>
    <message>
        <source>Lies in</source>
        <translation>Lies in</translation>
    </message>
    <message>
        <source>Read aloud</source>
        <translation>Read aloud</translation>
    </message>
    <message>
        <source>Two or three sentences for the players.</source>
        <translation>Two or three sentences for the players.</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Danger</translation>
    </message>
    <message>
        <source>What is hidden here</source>
        <translation>What is hidden here</translation>
    </message>
    <message>
        <source>Factions</source>
        <translation>Factions</translation>
    </message>
    <message>
        <source>Means</source>
        <translation>Means</translation>
    </message>
    <message>
        <source>Next move</source>
        <translation>Next move</translation>
    </message>
    <message>
        <source>What happens if the players do nothing.</source>
        <translation>What happens if the players do nothing.</translation>
    </message>
    <message>
        <source>Led by</source>
        <translation>Led by</translation>
    </message>
    <message>
        <source>A person of the codex.</source>
        <translation>A person of the codex.</translation>
    </message>
    <message>
        <source>Quests</source>
        <translation>Quests</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Rumour</source>
        <translation>Rumour</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accepted</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Given by</source>
        <translation>Given by</translation>
    </message>
    <message>
        <source>Reward</source>
        <translation>Reward</translation>
    </message>
    <message>
        <source>Twist</source>
        <translation>Twist</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>Rarity</source>
        <translation>Rarity</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Common</translation>
    </message>
    <message>
        <source>Uncommon</source>
        <translation>Uncommon</translation>
    </message>
    <message>
        <source>Rare</source>
        <translation>Rare</translation>
    </message>
    <message>
        <source>Unique</source>
        <translation>Unique</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effect</translation>
    </message>
    <message>
        <source>Carried by</source>
        <translation>Carried by</translation>
    </message>
    <message>
        <source>Gods and lore</source>
        <translation>Gods and lore</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domain</translation>
    </message>
    <message>
        <source>What everybody knows</source>
        <translation>What everybody knows</translation>
    </message>
    <message>
        <source>What is true</source>
        <translation>What is true</translation>
    </message>
    <message>
        <source>At the table</source>
        <translation>At the table</translation>
    </message>
    <message>
        <source>Session zero</source>
        <translation>Session zero</translation>
    </message>
    <message>
        <source>- Tone and theme:
- Lines and veils:
- House rules:
- How often, how long:
- Why the characters travel together:</source>
        <translation>- Tone and theme:
- Lines and veils:
- House rules:
- How often, how long:
- Why the characters travel together:</translation>
    </message>
    <message>
        <source>House rules</source>
        <translation>House rules</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Secrets</translation>
    </message>
    <message>
        <source>What the players do not know yet, and how they may find it out.

- </source>
        <translation>What the players do not know yet, and how they may find it out.

- </translation>
    </message>
    <message>
        <source>Chronicle</source>
        <translation>Chronicle</translation>
    </message>
    <message>
        <source>What happened, session by session, as the players would tell it.</source>
        <translation>What happened, session by session, as the players would tell it.</translation>
    </message>
    <message>
        <source>Session 1</source>
        <translation>Session 1</translation>
    </message>
    <message>
        <source>Preparation</source>
        <translation>Preparation</translation>
    </message>
    <message>
        <source>Plan for session 1</source>
        <translation>Plan for session 1</translation>
    </message>
    <message>
        <source># Strong start

# Scenes that may happen

- 

# Secrets and clues

- 

# Places

- 

# Characters

- 

# Rewards

- </source>
        <translation># Strong start

# Scenes that may happen

- 

# Secrets and clues

- 

# Places

- 

# Characters

- 

# Rewards

- </translation>
    </message>
    <message>
        <source>Game master</source>
        <translation>Game master</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Players</translation>
    </message>
    <message>
        <source>The great threat</source>
        <translation>The great threat</translation>
    </message>
    <message>
        <source>What comes nearer with each session.</source>
        <translation>What comes nearer with each session.</translation>
    </message>
    <message>
        <source>The characters’ own stories</source>
        <translation>The characters’ own stories</translation>
    </message>
    <message>
        <source>What each of them came for.</source>
        <translation>What each of them came for.</translation>
    </message>
    <message>
        <source>On the road</source>
        <translation>On the road</translation>
    </message>
    <message>
        <source>A bridge with a toll that nobody set</source>
        <translation>A bridge with a toll that nobody set</translation>
    </message>
    <message>
        <source>Travellers with a sick child</source>
        <translation>Travellers with a sick child</translation>
    </message>
    <message>
        <source>Tracks that end in the middle of a field</source>
        <translation>Tracks that end in the middle of a field</translation>
    </message>
    <message>
        <source>A storm by nightfall</source>
        <translation>A storm by nightfall</translation>
    </message>
    <message>
        <source>A patrol that looks for somebody like you</source>
        <translation>A patrol that looks for somebody like you</translation>
    </message>
    <message>
        <source>An old shrine with fresh flowers</source>
        <translation>An old shrine with fresh flowers</translation>
    </message>
    <message>
        <source>Rumours in the tavern</source>
        <translation>Rumours in the tavern</translation>
    </message>
    <message>
        <source>The mill turns at night though there is no wind</source>
        <translation>The mill turns at night though there is no wind</translation>
    </message>
    <message>
        <source>Somebody buys every map of the hills</source>
        <translation>Somebody buys every map of the hills</translation>
    </message>
    <message>
        <source>The old lord was seen, a year after his burial</source>
        <translation>The old lord was seen, a year after his burial</translation>
    </message>
    <message>
        <source>The well tastes of iron since the new moon</source>
        <translation>The well tastes of iron since the new moon</translation>
    </message>
    <message>
        <source>Town guard</source>
        <translation>Town guard</translation>
    </message>
    <message>
        <source>Calls for help before drawing a weapon.</source>
        <translation>Calls for help before drawing a weapon.</translation>
    </message>
    <message>
        <source>Armour</source>
        <translation>Armour</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Health</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Spear</source>
        <translation>Spear</translation>
    </message>
    <message>
        <source>Before the next session</source>
        <translation>Before the next session</translation>
    </message>
    <message>
        <source>Read the notes of the last session</source>
        <translation>Read the notes of the last session</translation>
    </message>
    <message>
        <source>Decide what each faction does next</source>
        <translation>Decide what each faction does next</translation>
    </message>
    <message>
        <source>Prepare a strong start</source>
        <translation>Prepare a strong start</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexMerge</name>
    <message>
        <source>Merge entities</source>
        <translation>Merge entities</translation>
    </message>
    <message>
        <source>Split entity</source>
        <translation>Split entity</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexModel</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message numerus="yes">
        <source>%1, category, %n entity(ies)</source>
        <translation>
            <numerusform>%1, category, %n entity</numerusform>
            <numerusform>%1, category, %n entities</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, pinned</source>
        <translation>%1, pinned</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entity</numerusform>
            <numerusform>%n entities</numerusform>
        </translation>
    </message>
    <message>
        <source>Also: %1</source>
        <translation>Also: %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
</context>
<context>
    <name>vl::app::CodexOperations</name>
    <message>
        <source>New Category</source>
        <translation>New Category</translation>
    </message>
    <message>
        <source>New Entity</source>
        <translation>New Entity</translation>
    </message>
    <message>
        <source>Add entity</source>
        <translation>Add entity</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Add task</translation>
    </message>
    <message>
        <source>Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.</source>
        <translation>Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Delete “%1”?</translation>
    </message>
    <message numerus="yes">
        <source>%n category(ies)</source>
        <translation>
            <numerusform>%n category</numerusform>
            <numerusform>%n categories</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entity</numerusform>
            <numerusform>%n entities</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1 and %2?</source>
        <translation>Delete %1 and %2?</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Delete %1?</translation>
    </message>
    <message>
        <source>Edit › Undo will restore it.</source>
        <translation>Edit › Undo will restore it.</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies) move up.</source>
        <translation>
            <numerusform>%n entity move up.</numerusform>
            <numerusform>%n entities move up.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Row(s)</source>
        <translation>
            <numerusform>Delete %n Row</numerusform>
            <numerusform>Delete %n Rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Category(ies)</source>
        <translation>
            <numerusform>Delete %n Category</numerusform>
            <numerusform>Delete %n Categories</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Entity(ies)</source>
        <translation>
            <numerusform>Delete %n Entity</numerusform>
            <numerusform>Delete %n Entities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n entity(ies)</source>
        <translation>
            <numerusform>Delete %n entity</numerusform>
            <numerusform>Delete %n entities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n category(ies)</source>
        <translation>
            <numerusform>Delete %n category</numerusform>
            <numerusform>Delete %n categories</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete from the codex</source>
        <translation>Delete from the codex</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copy)</translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n entity(ies)</source>
        <translation>
            <numerusform>Duplicate %n entity</numerusform>
            <numerusform>Duplicate %n entities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n codex row(s)</source>
        <translation>
            <numerusform>Move %n codex row</numerusform>
            <numerusform>Move %n codex rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Paste %n entity(ies)</source>
        <translation>
            <numerusform>Paste %n entity</numerusform>
            <numerusform>Paste %n entities</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::app::ContinuityChecker</name>
    <message>
        <source>An entity</source>
        <translation>An entity</translation>
    </message>
    <message>
        <source>Untitled event</source>
        <translation>Untitled event</translation>
    </message>
    <message>
        <source>"%1" happens at a location that no longer exists.</source>
        <translation>"%1" happens at a location that no longer exists.</translation>
    </message>
    <message>
        <source>"%1" lists a participant that no longer exists.</source>
        <translation>"%1" lists a participant that no longer exists.</translation>
    </message>
    <message>
        <source>%1 is in two places at once: "%2" and "%3".</source>
        <translation>%1 is in two places at once: "%2" and "%3".</translation>
    </message>
    <message>
        <source>%1 takes part in "%2" before being born.</source>
        <translation>%1 takes part in "%2" before being born.</translation>
    </message>
    <message>
        <source>%1 takes part in "%2" after death.</source>
        <translation>%1 takes part in "%2" after death.</translation>
    </message>
    <message>
        <source>%1 cannot travel from %2 to %3 in time between "%4" and "%5".</source>
        <translation>%1 cannot travel from %2 to %3 in time between "%4" and "%5".</translation>
    </message>
    <message>
        <source>must start after</source>
        <translation>must start after</translation>
    </message>
    <message>
        <source>must end before</source>
        <translation>must end before</translation>
    </message>
    <message>
        <source>must happen during</source>
        <translation>must happen during</translation>
    </message>
    <message>
        <source>"%1" %2 "%3", but does not.</source>
        <extracomment>%1 and %3 are titles of events, %2 is one of the phrases "must start after" and so on.</extracomment>
        <translation>"%1" %2 "%3", but does not.</translation>
    </message>
    <message>
        <source>Rule "%1" refers to an entity that is no longer in the project.</source>
        <translation>Rule "%1" refers to an entity that is no longer in the project.</translation>
    </message>
    <message>
        <source>Rule "%1": %2's %3 %4 "%5", but is "%6".</source>
        <translation>Rule "%1": %2's %3 %4 "%5", but is "%6".</translation>
    </message>
    <message>
        <source>must not be</source>
        <translation>must not be</translation>
    </message>
    <message>
        <source>must be</source>
        <translation>must be</translation>
    </message>
    <message>
        <source>(unset)</source>
        <translation>(unset)</translation>
    </message>
</context>
<context>
    <name>vl::app::DeletedStore</name>
    <message>
        <source>What was deleted could not be kept: %1</source>
        <translation>What was deleted could not be kept: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::DocumentOperations</name>
    <message>
        <source>Add note</source>
        <translation>Add note</translation>
    </message>
    <message>
        <source>Add document</source>
        <translation>Add document</translation>
    </message>
    <message>
        <source>New Note</source>
        <translation>New Note</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>New Document</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scene(s)</source>
        <translation>
            <numerusform>%n scene</numerusform>
            <numerusform>%n scenes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n word(s)</source>
        <comment>with the number written out by the program</comment>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete %1, %2?</source>
        <translation>Delete %1, %2?</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n document(s)</source>
        <translation>
            <numerusform>Delete %n document</numerusform>
            <numerusform>Delete %n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n document(s)</source>
        <translation>
            <numerusform>Move %n document</numerusform>
            <numerusform>Move %n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Promote %n document(s)</source>
        <translation>
            <numerusform>Promote %n document</numerusform>
            <numerusform>Promote %n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Demote %n document(s)</source>
        <translation>
            <numerusform>Demote %n document</numerusform>
            <numerusform>Demote %n documents</numerusform>
        </translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation>Change document kind</translation>
    </message>
    <message>
        <source>Split document</source>
        <translation>Split document</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continued)</translation>
    </message>
</context>
<context>
    <name>vl::app::DocumentsModel</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n word(s)</source>
        <translation>
            <numerusform>%1, %n word</numerusform>
            <numerusform>%1, %n words</numerusform>
        </translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>vl::app::ExternalChangesModel</name>
    <message>
        <source>Project settings and lists</source>
        <translation>Project settings and lists</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>What happened</translation>
    </message>
    <message>
        <source>Decision</source>
        <translation>Decision</translation>
    </message>
    <message>
        <source>A sync client's second version of it</source>
        <translation>A sync client's second version of it</translation>
    </message>
    <message>
        <source>The same on both sides</source>
        <translation>The same on both sides</translation>
    </message>
    <message>
        <source>Changed by you</source>
        <translation>Changed by you</translation>
    </message>
    <message>
        <source>Changed on disk</source>
        <translation>Changed on disk</translation>
    </message>
    <message>
        <source>Changed by you and on disk</source>
        <translation>Changed by you and on disk</translation>
    </message>
    <message>
        <source>Added by you</source>
        <translation>Added by you</translation>
    </message>
    <message>
        <source>Added on disk</source>
        <translation>Added on disk</translation>
    </message>
    <message>
        <source>Added by you and on disk</source>
        <translation>Added by you and on disk</translation>
    </message>
    <message>
        <source>Deleted by you</source>
        <translation>Deleted by you</translation>
    </message>
    <message>
        <source>Deleted on disk</source>
        <translation>Deleted on disk</translation>
    </message>
    <message>
        <source>Changed by you, deleted on disk</source>
        <translation>Changed by you, deleted on disk</translation>
    </message>
    <message>
        <source>Deleted by you, changed on disk</source>
        <translation>Deleted by you, changed on disk</translation>
    </message>
    <message>
        <source>⚠ To be decided</source>
        <translation>⚠ To be decided</translation>
    </message>
    <message>
        <source>Keep your version</source>
        <translation>Keep your version</translation>
    </message>
    <message>
        <source>Stays deleted</source>
        <translation>Stays deleted</translation>
    </message>
    <message>
        <source>Take the on-disk version</source>
        <translation>Take the on-disk version</translation>
    </message>
    <message>
        <source>Delete it here too</source>
        <translation>Delete it here too</translation>
    </message>
    <message>
        <source>Both, merged</source>
        <translation>Both, merged</translation>
    </message>
    <message>
        <source>Both, edited by you</source>
        <translation>Both, edited by you</translation>
    </message>
    <message>
        <source>There are still lines with marks in the text.</source>
        <translation>There are still lines with marks in the text.</translation>
    </message>
</context>
<context>
    <name>vl::app::FieldSuggestions</name>
    <message>
        <source>character;people;person;cast</source>
        <comment>parts of the names of categories that hold characters</comment>
        <translation>character;people;person;cast</translation>
    </message>
</context>
<context>
    <name>vl::app::FileMerge</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>Not a text file, so it cannot be merged: %1</source>
        <translation>Not a text file, so it cannot be merged: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderMerge</name>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>The project folder does not exist: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>The output folder is not empty: %1</source>
        <translation>The output folder is not empty: %1</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>Failed to write file: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Cannot create project folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderReader</name>
    <message>
        <source>Skipped a hidden file: %1</source>
        <translation>Skipped a hidden file: %1</translation>
    </message>
    <message>
        <source>Skipped a link: %1</source>
        <translation>Skipped a link: %1</translation>
    </message>
    <message>
        <source>Skipped a folder that lies too deep: %1</source>
        <translation>Skipped a folder that lies too deep: %1</translation>
    </message>
    <message>
        <source>Skipped, not a text file: %1</source>
        <translation>Skipped, not a text file: %1</translation>
    </message>
    <message>
        <source>Skipped, too much was read already: %1</source>
        <translation>Skipped, too much was read already: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>Cannot read folder: %1</source>
        <translation>Cannot read folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::FolderWriter</name>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>Failed to write file: %1</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>The project changed outside Ivorel since you opened it.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Cannot create project folder: %1</translation>
    </message>
    <message>
        <source>Cannot create taxonomy folder: %1</source>
        <translation>Cannot create taxonomy folder: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>The project folder does not exist: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::HealthReport</name>
    <message>
        <source>%1 (%2 words)</source>
        <translation>%1 (%2 words)</translation>
    </message>
    <message>
        <source>Untitled (%1)</source>
        <translation>Untitled (%1)</translation>
    </message>
    <message>
        <source>Manuscript health report</source>
        <translation>Manuscript health report</translation>
    </message>
    <message>
        <source>Manuscript health report: %1</source>
        <translation>Manuscript health report: %1</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Scenes</translation>
    </message>
    <message>
        <source>Documents without text</source>
        <translation>Documents without text</translation>
    </message>
    <message>
        <source>Average scene</source>
        <translation>Average scene</translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation>%1 words</translation>
    </message>
    <message>
        <source>Median scene</source>
        <translation>Median scene</translation>
    </message>
    <message>
        <source>Longest scene</source>
        <translation>Longest scene</translation>
    </message>
    <message>
        <source>Shortest scene</source>
        <translation>Shortest scene</translation>
    </message>
    <message>
        <source>Reading time</source>
        <translation>Reading time</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Manuscript pages</source>
        <translation>Manuscript pages</translation>
    </message>
    <message>
        <source>Paragraphs</source>
        <translation>Paragraphs</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Share</translation>
    </message>
    <message>
        <source>(no status)</source>
        <translation>(no status)</translation>
    </message>
    <message>
        <source>Dialogue and narration</source>
        <translation>Dialogue and narration</translation>
    </message>
    <message>
        <source>There is no prose to measure.</source>
        <translation>There is no prose to measure.</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialogue</translation>
    </message>
    <message>
        <source>%1 words (%2)</source>
        <translation>%1 words (%2)</translation>
    </message>
    <message>
        <source>Narration</source>
        <translation>Narration</translation>
    </message>
    <message>
        <source>Passages of speech</source>
        <translation>Passages of speech</translation>
    </message>
    <message>
        <source>Words in a passage</source>
        <translation>Words in a passage</translation>
    </message>
    <message>
        <source>Scenes without dialogue</source>
        <translation>Scenes without dialogue</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Most dialogue</source>
        <translation>Most dialogue</translation>
    </message>
    <message>
        <source>Least dialogue</source>
        <translation>Least dialogue</translation>
    </message>
    <message>
        <source>very easy</source>
        <translation>very easy</translation>
    </message>
    <message>
        <source>easy</source>
        <translation>easy</translation>
    </message>
    <message>
        <source>fairly easy</source>
        <translation>fairly easy</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>plain</translation>
    </message>
    <message>
        <source>fairly hard</source>
        <translation>fairly hard</translation>
    </message>
    <message>
        <source>hard</source>
        <translation>hard</translation>
    </message>
    <message>
        <source>very hard</source>
        <translation>very hard</translation>
    </message>
    <message>
        <source>Readability</source>
        <translation>Readability</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sentences</translation>
    </message>
    <message>
        <source>Words in a sentence</source>
        <translation>Words in a sentence</translation>
    </message>
    <message>
        <source>Longest sentence</source>
        <translation>Longest sentence</translation>
    </message>
    <message>
        <source>Sentences in a paragraph</source>
        <translation>Sentences in a paragraph</translation>
    </message>
    <message>
        <source>Syllables in a word</source>
        <translation>Syllables in a word</translation>
    </message>
    <message>
        <source>Words of three syllables or more</source>
        <translation>Words of three syllables or more</translation>
    </message>
    <message>
        <source>Flesch reading ease</source>
        <translation>Flesch reading ease</translation>
    </message>
    <message>
        <source>Flesch–Kincaid grade</source>
        <translation>Flesch–Kincaid grade</translation>
    </message>
    <message>
        <source>Gunning fog index</source>
        <translation>Gunning fog index</translation>
    </message>
    <message>
        <source>Easiest scene</source>
        <translation>Easiest scene</translation>
    </message>
    <message>
        <source>Hardest scene</source>
        <translation>Hardest scene</translation>
    </message>
    <message>
        <source>Point-of-view balance</source>
        <translation>Point-of-view balance</translation>
    </message>
    <message>
        <source>No scene names a point of view.</source>
        <translation>No scene names a point of view.</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Point of view</translation>
    </message>
    <message>
        <source>Longest run</source>
        <translation>Longest run</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>The longest run counts scenes in a row from one point of view.</source>
        <translation>The longest run counts scenes in a row from one point of view.</translation>
    </message>
    <message>
        <source>World coverage</source>
        <translation>World coverage</translation>
    </message>
    <message>
        <source>The codex has no entities.</source>
        <translation>The codex has no entities.</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entities</translation>
    </message>
    <message>
        <source>Mentioned</source>
        <translation>Mentioned</translation>
    </message>
    <message>
        <source>Never mentioned</source>
        <translation>Never mentioned</translation>
    </message>
    <message>
        <source>Without a category</source>
        <translation>Without a category</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>First scene</source>
        <translation>First scene</translation>
    </message>
    <message>
        <source>Last scene</source>
        <translation>Last scene</translation>
    </message>
    <message>
        <source>Never mentioned: %1</source>
        <translation>Never mentioned: %1</translation>
    </message>
    <message>
        <source>Writing style</source>
        <translation>Writing style</translation>
    </message>
    <message>
        <source>No style issues flagged.</source>
        <translation>No style issues flagged.</translation>
    </message>
    <message>
        <source>| Category | Issues |</source>
        <translation>| Category | Issues |</translation>
    </message>
    <message>
        <source>| **Total** | %1 |</source>
        <translation>| **Total** | %1 |</translation>
    </message>
</context>
<context>
    <name>vl::app::Import</name>
    <message>
        <source>Import documents</source>
        <translation>Import documents</translation>
    </message>
</context>
<context>
    <name>vl::app::InspectorForms</name>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Aliases</source>
        <translation>Aliases</translation>
    </message>
    <message>
        <source>Other names, under which the manuscript may speak of it.</source>
        <translation>Other names, under which the manuscript may speak of it.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Kept from before: the category has no such field.</source>
        <translation>Kept from before: the category has no such field.</translation>
    </message>
    <message>
        <source>Other values</source>
        <translation>Other values</translation>
    </message>
    <message>
        <source>Life</source>
        <translation>Life</translation>
    </message>
    <message>
        <source>Born or begun</source>
        <translation>Born or begun</translation>
    </message>
    <message>
        <source>Died or ended</source>
        <translation>Died or ended</translation>
    </message>
    <message>
        <source>State over time</source>
        <translation>State over time</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Prose</source>
        <translation>Prose</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Screenplay</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Point of view</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>0 stands for not set.</source>
        <translation>0 stands for not set.</translation>
    </message>
    <message>
        <source>Scene date</source>
        <translation>Scene date</translation>
    </message>
    <message>
        <source>Word-count target</source>
        <translation>Word-count target</translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation>Plot threads</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Caption</translation>
    </message>
    <message>
        <source>Citation key</source>
        <translation>Citation key</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Resolved</translation>
    </message>
    <message>
        <source>Grammar notes</source>
        <translation>Grammar notes</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Everywhere</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Audiences</source>
        <translation>Audiences</translation>
    </message>
    <message>
        <source>Without any, everybody sees it.</source>
        <translation>Without any, everybody sees it.</translation>
    </message>
    <message>
        <source>Withhold from AI services</source>
        <translation>Withhold from AI services</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contents</translation>
    </message>
</context>
<context>
    <name>vl::app::InspectorModel</name>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Under</translation>
    </message>
    <message>
        <source>(top level)</source>
        <translation>(top level)</translation>
    </message>
    <message>
        <source>Fields of its entities</source>
        <translation>Fields of its entities</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Fields</translation>
    </message>
    <message numerus="yes">
        <source>%n entity(ies)</source>
        <translation>
            <numerusform>%n entity</numerusform>
            <numerusform>%n entities</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
    <message>
        <source>No entity is called so.</source>
        <translation>No entity is called so.</translation>
    </message>
    <message>
        <source>What it referred to was deleted.</source>
        <translation>What it referred to was deleted.</translation>
    </message>
    <message>
        <source>Kept as written: no date of the calendar.</source>
        <translation>Kept as written: no date of the calendar.</translation>
    </message>
    <message>
        <source>Kept as written: no number.</source>
        <translation>Kept as written: no number.</translation>
    </message>
    <message>
        <source>Kept as written: no web address.</source>
        <translation>Kept as written: no web address.</translation>
    </message>
    <message>
        <source>To be filled.</source>
        <translation>To be filled.</translation>
    </message>
    <message>
        <source>It needs a name.</source>
        <translation>It needs a name.</translation>
    </message>
    <message>
        <source>No date of the calendar. Type one like “%1”.</source>
        <translation>No date of the calendar. Type one like “%1”.</translation>
    </message>
    <message>
        <source>No entity is called “%1”.</source>
        <translation>No entity is called “%1”.</translation>
    </message>
    <message>
        <source>Several entities are called “%1”: choose one from the list.</source>
        <translation>Several entities are called “%1”: choose one from the list.</translation>
    </message>
</context>
<context>
    <name>vl::app::Journal</name>
    <message>
        <source>What was not saved before the crash cannot be read: %1</source>
        <translation>What was not saved before the crash cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::MarkdownImport</name>
    <message>
        <source>Front Matter</source>
        <translation>Front Matter</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
</context>
<context>
    <name>vl::app::ObjectSummary</name>
    <message>
        <source>(missing)</source>
        <translation>(missing)</translation>
    </message>
    <message>
        <source>Place: %1</source>
        <translation>Place: %1</translation>
    </message>
    <message>
        <source>With %1</source>
        <translation>With %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s)</source>
        <translation>
            <numerusform>%n cell</numerusform>
            <numerusform>%n cells</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) of figures</source>
        <translation>
            <numerusform>%n row of figures</numerusform>
            <numerusform>%n rows of figures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pin(s)</source>
        <translation>
            <numerusform>%n pin</numerusform>
            <numerusform>%n pins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n region(s)</source>
        <translation>
            <numerusform>%n region</numerusform>
            <numerusform>%n regions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n route(s)</source>
        <translation>
            <numerusform>%n route</numerusform>
            <numerusform>%n routes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n event</numerusform>
            <numerusform>%n events</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Not done</translation>
    </message>
    <message>
        <source>Due %1</source>
        <translation>Due %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>About %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s)</source>
        <translation>
            <numerusform>%n card</numerusform>
            <numerusform>%n cards</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1</source>
        <translation>On %1</translation>
    </message>
    <message numerus="yes">
        <source>%n word(s) in the lexicon</source>
        <translation>
            <numerusform>%n word in the lexicon</numerusform>
            <numerusform>%n words in the lexicon</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) to roll</source>
        <translation>
            <numerusform>%n line to roll</numerusform>
            <numerusform>%n lines to roll</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 figures, %2 actions</source>
        <translation>%1 figures, %2 actions</translation>
    </message>
</context>
<context>
    <name>vl::app::OpenProject</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation>This project has no save location yet; use saveAs().</translation>
    </message>
    <message>
        <source>%1 (read-only)</source>
        <translation>%1 (read-only)</translation>
    </message>
    <message>
        <source>“%1” was opened to be read only. Save it under another name first; pictures are kept beside the text.</source>
        <translation>“%1” was opened to be read only. Save it under another name first; pictures are kept beside the text.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Cannot create project folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::Opening</name>
    <message>
        <source>The project file is not readable right now; try again.</source>
        <translation>The project file is not readable right now; try again.</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>Could not refresh the project's working folder: %1</translation>
    </message>
    <message>
        <source>Could not restore unsaved changes into the project file: %1</source>
        <translation>Could not restore unsaved changes into the project file: %1</translation>
    </message>
    <message>
        <source>This project has no save location to reload from.</source>
        <translation>This project has no save location to reload from.</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideMonitor</name>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>Could not open the project file: %1</translation>
    </message>
    <message>
        <source>Something else is being done to the project; try again.</source>
        <translation>Something else is being done to the project; try again.</translation>
    </message>
    <message>
        <source>The project changed again meanwhile; look at the changes once more.</source>
        <translation>The project changed again meanwhile; look at the changes once more.</translation>
    </message>
    <message>
        <source>Load on-disk version</source>
        <translation>Load on-disk version</translation>
    </message>
    <message>
        <source>Merge on-disk changes</source>
        <translation>Merge on-disk changes</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideOffer</name>
    <message>
        <source>The project's files are gone from the disk: %1</source>
        <translation>The project's files are gone from the disk: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Ivorel and cannot be read.</source>
        <translation>
            <numerusform>%n project file changed outside Ivorel and cannot be read.</numerusform>
            <numerusform>%n project files changed outside Ivorel and cannot be read.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing of it is loaded. What you have here is whole, and saving keeps it.</source>
        <translation>Nothing of it is loaded. What you have here is whole, and saving keeps it.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) changed outside Ivorel and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</source>
        <translation>
            <numerusform>%n file changed outside Ivorel and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</numerusform>
            <numerusform>%n files changed outside Ivorel and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</numerusform>
        </translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>The project changed outside Ivorel since you opened it.</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Ivorel since you opened it.</source>
        <translation>
            <numerusform>%n project file changed outside Ivorel since you opened it.</numerusform>
            <numerusform>%n project files changed outside Ivorel since you opened it.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reopen the project to load the on-disk version, or save to keep yours. (This is a read-only heads-up so a sync client or co-author's changes don't surprise you.)</source>
        <translation>Reopen the project to load the on-disk version, or save to keep yours. (This is a read-only heads-up so a sync client or co-author's changes don't surprise you.)</translation>
    </message>
    <message>
        <source>Loaded the on-disk version of the project.</source>
        <translation>Loaded the on-disk version of the project.</translation>
    </message>
    <message>
        <source>Keeping your version — your next save will overwrite the on-disk changes.</source>
        <translation>Keeping your version — your next save will overwrite the on-disk changes.</translation>
    </message>
    <message>
        <source>No external changes — the project on disk matches what you have open.</source>
        <translation>No external changes — the project on disk matches what you have open.</translation>
    </message>
    <message>
        <source>Merged the on-disk changes with yours.</source>
        <translation>Merged the on-disk changes with yours.</translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</source>
        <translation>
            <numerusform>%n media file in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</numerusform>
            <numerusform>%n media files in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reloaded the project with the updated media files.</source>
        <translation>Reloaded the project with the updated media files.</translation>
    </message>
    <message>
        <source>Nothing is removed here. If the disk or the sync folder comes back, all goes on as before; otherwise save to write everything there again, but for pictures and other media, which were only there.</source>
        <translation>Nothing is removed here. If the disk or the sync folder comes back, all goes on as before; otherwise save to write everything there again, but for pictures and other media, which were only there.</translation>
    </message>
</context>
<context>
    <name>vl::app::OutsideScan</name>
    <message>
        <source>The project file is not readable right now; try again.</source>
        <translation>The project file is not readable right now; try again.</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>Could not refresh the project's working folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::PlainTextImport</name>
    <message>
        <source>Front Matter</source>
        <translation>Front Matter</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectFlows</name>
    <message>
        <source>Open Project</source>
        <translation>Open Project</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>The project changed outside Ivorel since you opened it.</translation>
    </message>
    <message>
        <source>Saving puts your version in place of what was changed there. To keep both, save under another name.</source>
        <translation>Saving puts your version in place of what was changed there. To keep both, save under another name.</translation>
    </message>
    <message>
        <source>Save My Version</source>
        <translation>Save My Version</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Save Project</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copy)</translation>
    </message>
    <message>
        <source>This project is open in another window: %1</source>
        <translation>This project is open in another window: %1</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>New Project</translation>
    </message>
    <message>
        <source>The project could not be found: %1</source>
        <translation>The project could not be found: %1</translation>
    </message>
    <message>
        <source>&amp;Locate…</source>
        <translation>&amp;Locate…</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Remove from List</translation>
    </message>
    <message numerus="yes">
        <source>The copy leaves out %n file(s) that cannot be read:</source>
        <translation>
            <numerusform>The copy leaves out %n file that cannot be read:</numerusform>
            <numerusform>The copy leaves out %n files that cannot be read:</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving writes everything there again that is open here; pictures and other media that were only there are not brought back. If the disk or the sync folder may come back, wait for it, or save under another name.</source>
        <translation>Saving writes everything there again that is open here; pictures and other media that were only there are not brought back. If the disk or the sync folder may come back, wait for it, or save under another name.</translation>
    </message>
    <message>
        <source>Save There Again</source>
        <translation>Save There Again</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) beside the text cannot be read.</source>
        <translation>
            <numerusform>%n file beside the text cannot be read.</numerusform>
            <numerusform>%n files beside the text cannot be read.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything you wrote is saved; what cannot be read stays where it is.</source>
        <translation>Everything you wrote is saved; what cannot be read stays where it is.</translation>
    </message>
    <message>
        <source>Save the Rest</source>
        <translation>Save the Rest</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectFolder</name>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>Could not read a project file: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>The project folder does not exist: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>Could not write a project file: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Could not create the folder for: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectMaker</name>
    <message>
        <source>The project needs a name.</source>
        <translation>The project needs a name.</translation>
    </message>
    <message>
        <source>The name must do without / \ : * ? " &lt; &gt; and |.</source>
        <translation>The name must do without / \ : * ? " &lt; &gt; and |.</translation>
    </message>
    <message numerus="yes">
        <source>The name must not begin or end with a point, nor be longer than %n character(s).</source>
        <translation>
            <numerusform>The name must not begin or end with a point, nor be longer than %n character.</numerusform>
            <numerusform>The name must not begin or end with a point, nor be longer than %n characters.</numerusform>
        </translation>
    </message>
    <message>
        <source>The project needs a place.</source>
        <translation>The project needs a place.</translation>
    </message>
    <message>
        <source>This is no folder: %1</source>
        <translation>This is no folder: %1</translation>
    </message>
    <message>
        <source>There is something of this name already: %1</source>
        <translation>There is something of this name already: %1</translation>
    </message>
    <message>
        <source>The folder could not be made: %1</source>
        <translation>The folder could not be made: %1</translation>
    </message>
    <message>
        <source>There is no such template.</source>
        <translation>There is no such template.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectReader</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>The project folder does not exist: %1</translation>
    </message>
    <message>
        <source>Invalid JSON in file: %1</source>
        <translation>Invalid JSON in file: %1</translation>
    </message>
    <message>
        <source>Malformed object file: %1</source>
        <translation>Malformed object file: %1</translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation>Duplicate object id %1 in %2</translation>
    </message>
    <message>
        <source>Malformed category file: %1</source>
        <translation>Malformed category file: %1</translation>
    </message>
    <message>
        <source>Malformed field in category: %1</source>
        <translation>Malformed field in category: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectRepair</name>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>Could not read a project file: %1</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>Could not open the project file: %1</translation>
    </message>
    <message>
        <source>Its bytes in the project file are damaged or missing.</source>
        <translation>Its bytes in the project file are damaged or missing.</translation>
    </message>
    <message>
        <source>Nothing in this file can be read: %1</source>
        <translation>Nothing in this file can be read: %1</translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation>Duplicate object id %1 in %2</translation>
    </message>
    <message>
        <source>Something stands there already: %1</source>
        <translation>Something stands there already: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>Could not write a project file: %1</translation>
    </message>
    <message>
        <source>Could not move the file: %1</source>
        <translation>Could not move the file: %1</translation>
    </message>
    <message>
        <source>The project file holds “%1” more than once; this is an earlier one.</source>
        <translation>The project file holds “%1” more than once; this is an earlier one.</translation>
    </message>
    <message>
        <source>The project changed outside Ivorel since you opened it.</source>
        <translation>The project changed outside Ivorel since you opened it.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectSearchModel</name>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Footnote</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Point of view</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Caption</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Cell</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entry</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>The search was stopped.</translation>
    </message>
    <message>
        <source>Comment on “%1”</source>
        <translation>Comment on “%1”</translation>
    </message>
    <message>
        <source>Eras</source>
        <translation>Eras</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Markers</translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation>Plot threads</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>The expression takes too many steps; the search stopped at “%1”.</source>
        <translation>The expression takes too many steps; the search stopped at “%1”.</translation>
    </message>
    <message>
        <source>Replace in project</source>
        <translation>Replace in project</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n place(s)</source>
        <translation>
            <numerusform>%1: %n place</numerusform>
            <numerusform>%1: %n places</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>%1 “%2”</translation>
    </message>
    <message>
        <source>%1, becomes “%2”</source>
        <translation>%1, becomes “%2”</translation>
    </message>
    <message>
        <source>This text is not changed from here.</source>
        <translation>This text is not changed from here.</translation>
    </message>
</context>
<context>
    <name>vl::app::ProjectStore</name>
    <message>
        <source>The folder is not empty: %1</source>
        <translation>The folder is not empty: %1</translation>
    </message>
    <message>
        <source>Not a valid Ivorel project file: %1</source>
        <translation>Not a valid Ivorel project file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::QuickOpenModel</name>
    <message>
        <source>The current document has no headings.</source>
        <translation>The current document has no headings.</translation>
    </message>
    <message>
        <source>No heading matches.</source>
        <translation>No heading matches.</translation>
    </message>
    <message>
        <source>Nothing in this project has a tag.</source>
        <translation>Nothing in this project has a tag.</translation>
    </message>
    <message>
        <source>No tag matches.</source>
        <translation>No tag matches.</translation>
    </message>
    <message>
        <source>No command matches.</source>
        <translation>No command matches.</translation>
    </message>
    <message>
        <source>This project has no documents or entities yet.</source>
        <translation>This project has no documents or entities yet.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nothing matches “%1”.</translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 – also “%2”</source>
        <translation>%1 – also “%2”</translation>
    </message>
</context>
<context>
    <name>vl::app::ReadableFile</name>
    <message>
        <source>Place in the text</source>
        <translation>Place in the text</translation>
    </message>
    <message>
        <source>Media file</source>
        <translation>Media file</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Made</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Due</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Endnote</source>
        <translation>Endnote</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Fields</translation>
    </message>
    <message>
        <source>Footnotes</source>
        <translation>Footnotes</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Mark</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Under</source>
        <translation>Under</translation>
    </message>
    <message>
        <source>Who takes part</source>
        <translation>Who takes part</translation>
    </message>
    <message>
        <source>Text before the revision</source>
        <translation>Text before the revision</translation>
    </message>
    <message>
        <source>Place in the order</source>
        <translation>Place in the order</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Beginning</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Other wordings</source>
        <translation>Other wordings</translation>
    </message>
    <message>
        <source>Earlier versions</source>
        <translation>Earlier versions</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>another object (%1)</source>
        <translation>another object (%1)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>One end</source>
        <translation>One end</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Wording shown</source>
        <translation>Wording shown</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignment</translation>
    </message>
    <message>
        <source>Annotations</source>
        <translation>Annotations</translation>
    </message>
    <message>
        <source>Scenes of the beats</source>
        <translation>Scenes of the beats</translation>
    </message>
    <message>
        <source>Other end</source>
        <translation>Other end</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Background colour</translation>
    </message>
    <message>
        <source>Beat</source>
        <translation>Beat</translation>
    </message>
    <message>
        <source>Beat sheet</source>
        <translation>Beat sheet</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Cards</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categories</translation>
    </message>
    <message>
        <source>Title of the category axis</source>
        <translation>Title of the category axis</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cells</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Character</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Collapsed</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Coloured by</source>
        <translation>Coloured by</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Column widths</source>
        <translation>Column widths</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparison</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Connections</translation>
    </message>
    <message>
        <source>Consonants</source>
        <translation>Consonants</translation>
    </message>
    <message>
        <source>Order among the events</source>
        <translation>Order among the events</translation>
    </message>
    <message>
        <source>Continuity rules</source>
        <translation>Continuity rules</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Words a day</source>
        <translation>Words a day</translation>
    </message>
    <message>
        <source>Certainty of the date</source>
        <translation>Certainty of the date</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation>Deadline</translation>
    </message>
    <message>
        <source>Decimal places</source>
        <translation>Decimal places</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Density</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Unit of distance</source>
        <translation>Unit of distance</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Length in minutes</source>
        <translation>Length in minutes</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Entity templates</source>
        <translation>Entity templates</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Offset in minutes</source>
        <translation>Offset in minutes</translation>
    </message>
    <message>
        <source>Era</source>
        <translation>Era</translation>
    </message>
    <message>
        <source>Size of the events</source>
        <translation>Size of the events</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Values of the fields</source>
        <translation>Values of the fields</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>Columns of the grid</source>
        <translation>Columns of the grid</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Grouped by</source>
        <translation>Grouped by</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Marks the present</source>
        <translation>Marks the present</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Form of the labels</source>
        <translation>Form of the labels</translation>
    </message>
    <message>
        <source>Place of the labels</source>
        <translation>Place of the labels</translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation>Lanes</translation>
    </message>
    <message>
        <source>Lexicon</source>
        <translation>Lexicon</translation>
    </message>
    <message>
        <source>Linked category</source>
        <translation>Linked category</translation>
    </message>
    <message>
        <source>Linked entity</source>
        <translation>Linked entity</translation>
    </message>
    <message>
        <source>Linked map</source>
        <translation>Linked map</translation>
    </message>
    <message>
        <source>Words of the manuscript</source>
        <translation>Words of the manuscript</translation>
    </message>
    <message>
        <source>Most syllables</source>
        <translation>Most syllables</translation>
    </message>
    <message>
        <source>Fewest syllables</source>
        <translation>Fewest syllables</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>Mounted libraries</source>
        <translation>Mounted libraries</translation>
    </message>
    <message>
        <source>Number format</source>
        <translation>Number format</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Object</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Equal steps</source>
        <translation>Equal steps</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>Part of speech</source>
        <translation>Part of speech</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Syllable patterns</source>
        <translation>Syllable patterns</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Pinned</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Pins</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Corners</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Recipient</source>
        <translation>Recipient</translation>
    </message>
    <message>
        <source>Reckonings</source>
        <translation>Reckonings</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regions</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Required</translation>
    </message>
    <message>
        <source>Revealed</source>
        <translation>Revealed</translation>
    </message>
    <message>
        <source>Routes</source>
        <translation>Routes</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Row</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Row height</source>
        <translation>Row height</translation>
    </message>
    <message>
        <source>Row heights</source>
        <translation>Row heights</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Saved searches</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Scenes</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Order of the series</source>
        <translation>Order of the series</translation>
    </message>
    <message>
        <source>Shape of the series</source>
        <translation>Shape of the series</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Conflict marks shown</source>
        <translation>Conflict marks shown</translation>
    </message>
    <message>
        <source>Density strip shown</source>
        <translation>Density strip shown</translation>
    </message>
    <message>
        <source>Grid lines shown</source>
        <translation>Grid lines shown</translation>
    </message>
    <message>
        <source>Labels shown</source>
        <translation>Labels shown</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>Kind of source</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Values</translation>
    </message>
    <message>
        <source>Struck out</source>
        <translation>Struck out</translation>
    </message>
    <message>
        <source>Submission</source>
        <translation>Submission</translation>
    </message>
    <message>
        <source>Submitted</source>
        <translation>Submitted</translation>
    </message>
    <message>
        <source>Rule system</source>
        <translation>Rule system</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Template</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Text colour</translation>
    </message>
    <message>
        <source>Timeline bookmarks</source>
        <translation>Timeline bookmarks</translation>
    </message>
    <message>
        <source>Timeline eras</source>
        <translation>Timeline eras</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Timeline markers</source>
        <translation>Timeline markers</translation>
    </message>
    <message>
        <source>Timeline view</source>
        <translation>Timeline view</translation>
    </message>
    <message>
        <source>Timeline view presets</source>
        <translation>Timeline view presets</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Travel speed an hour</source>
        <translation>Travel speed an hour</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>Underlined</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Title of the value axis</source>
        <translation>Title of the value axis</translation>
    </message>
    <message>
        <source>Vowels</source>
        <translation>Vowels</translation>
    </message>
    <message>
        <source>Days of the week</source>
        <translation>Days of the week</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>Distance across the map</source>
        <translation>Distance across the map</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Word</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Writable</source>
        <translation>Writable</translation>
    </message>
    <message>
        <source>Writing goal</source>
        <translation>Writing goal</translation>
    </message>
    <message>
        <source>Writing log</source>
        <translation>Writing log</translation>
    </message>
    <message>
        <source>Centred</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>As the sheet has it</source>
        <translation>As the sheet has it</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Is</source>
        <translation>Is</translation>
    </message>
    <message>
        <source>Is not</source>
        <translation>Is not</translation>
    </message>
    <message>
        <source>After</source>
        <translation>After</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>During</source>
        <translation>During</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>Hexagons</source>
        <translation>Hexagons</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Squares</source>
        <translation>Squares</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Bars</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>Pie</source>
        <translation>Pie</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Currency</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percent</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Scientific</translation>
    </message>
    <message>
        <source>Around</source>
        <translation>Around</translation>
    </message>
</context>
<context>
    <name>vl::app::RecentlyDeleted</name>
    <message>
        <source>Restore what was deleted</source>
        <translation>Restore what was deleted</translation>
    </message>
</context>
<context>
    <name>vl::app::ReckoningView</name>
    <message>
        <source>New reckoning</source>
        <translation>New reckoning</translation>
    </message>
</context>
<context>
    <name>vl::app::Reconcile</name>
    <message>
        <source>the reconcile has conflicts to resolve first</source>
        <translation>the reconcile has conflicts to resolve first</translation>
    </message>
    <message>
        <source>the merged file '%1' would not be valid</source>
        <translation>the merged file '%1' would not be valid</translation>
    </message>
</context>
<context>
    <name>vl::app::Recovery</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s)</source>
        <translation>
            <numerusform>%n change</numerusform>
            <numerusform>%n changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 and %n other</numerusform>
            <numerusform>%1 and %n others</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore unsaved work</source>
        <translation>Restore unsaved work</translation>
    </message>
    <message>
        <source>%1 (unsaved work)</source>
        <translation>%1 (unsaved work)</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::RepairFlow</name>
    <message>
        <source>%1 (backup)</source>
        <translation>%1 (backup)</translation>
    </message>
    <message>
        <source>%1 (repaired)</source>
        <translation>%1 (repaired)</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Open Project</translation>
    </message>
    <message>
        <source>It is in the newest backup, and missing in this file.</source>
        <translation>It is in the newest backup, and missing in this file.</translation>
    </message>
</context>
<context>
    <name>vl::app::Saving</name>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation>This project has no save location yet; use saveAs().</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>Could not open the project file: %1</translation>
    </message>
</context>
<context>
    <name>vl::app::SearchPattern</name>
    <message>
        <source>What is searched for is too long.</source>
        <translation>What is searched for is too long.</translation>
    </message>
    <message>
        <source>There is nothing to search for.</source>
        <translation>There is nothing to search for.</translation>
    </message>
    <message>
        <source>The expression is not complete at character %1: %2.</source>
        <translation>The expression is not complete at character %1: %2.</translation>
    </message>
</context>
<context>
    <name>vl::app::StoryTemplates</name>
    <message>
        <source>Role</source>
        <translation>Role</translation>
    </message>
    <message>
        <source>Protagonist</source>
        <translation>Protagonist</translation>
    </message>
    <message>
        <source>Antagonist</source>
        <translation>Antagonist</translation>
    </message>
    <message>
        <source>Ally</source>
        <translation>Ally</translation>
    </message>
    <message>
        <source>Love interest</source>
        <translation>Love interest</translation>
    </message>
    <message>
        <source>Mentor</source>
        <translation>Mentor</translation>
    </message>
    <message>
        <source>Supporting</source>
        <translation>Supporting</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Age</translation>
    </message>
    <message>
        <source>Occupation</source>
        <translation>Occupation</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>What a stranger would notice first.</source>
        <translation>What a stranger would notice first.</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>How they speak: pace, pet words, what they never say.</source>
        <translation>How they speak: pace, pet words, what they never say.</translation>
    </message>
    <message>
        <source>Wants</source>
        <translation>Wants</translation>
    </message>
    <message>
        <source>What they go after from the first page on.</source>
        <translation>What they go after from the first page on.</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>Needs</translation>
    </message>
    <message>
        <source>What they must learn or let go of.</source>
        <translation>What they must learn or let go of.</translation>
    </message>
    <message>
        <source>Fears</source>
        <translation>Fears</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>A place of the codex.</source>
        <translation>A place of the codex.</translation>
    </message>
    <message>
        <source>Related to</source>
        <translation>Related to</translation>
    </message>
    <message>
        <source>A person of the codex.</source>
        <translation>A person of the codex.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Town</source>
        <translation>Town</translation>
    </message>
    <message>
        <source>Building</source>
        <translation>Building</translation>
    </message>
    <message>
        <source>Room</source>
        <translation>Room</translation>
    </message>
    <message>
        <source>Wilderness</source>
        <translation>Wilderness</translation>
    </message>
    <message>
        <source>Lies in</source>
        <translation>Lies in</translation>
    </message>
    <message>
        <source>Senses</source>
        <translation>Senses</translation>
    </message>
    <message>
        <source>What is seen, heard and smelled there.</source>
        <translation>What is seen, heard and smelled there.</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>Mood</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Owner</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>Why the story cannot do without it.</source>
        <translation>Why the story cannot do without it.</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Purpose</translation>
    </message>
    <message>
        <source>Led by</source>
        <translation>Led by</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Seat</translation>
    </message>
    <message>
        <source>Enemies</source>
        <translation>Enemies</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Places</translation>
    </message>
    <message>
        <source>Things</source>
        <translation>Things</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Main character</source>
        <translation>Main character</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Read the whole draft without changing anything</source>
        <translation>Read the whole draft without changing anything</translation>
    </message>
    <message>
        <source>Note only where you were bored, lost or moved.</source>
        <translation>Note only where you were bored, lost or moved.</translation>
    </message>
    <message>
        <source>Does each scene change something?</source>
        <translation>Does each scene change something?</translation>
    </message>
    <message>
        <source>Follow each plot thread from its first scene to its last</source>
        <translation>Follow each plot thread from its first scene to its last</translation>
    </message>
    <message>
        <source>Check names, ages and dates against the codex</source>
        <translation>Check names, ages and dates against the codex</translation>
    </message>
    <message>
        <source>Read the dialogue aloud</source>
        <translation>Read the dialogue aloud</translation>
    </message>
    <message>
        <source>Proofread the last version</source>
        <translation>Proofread the last version</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Chapter %1</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Act One</source>
        <translation>Act One</translation>
    </message>
    <message>
        <source>The ordinary world</source>
        <translation>The ordinary world</translation>
    </message>
    <message>
        <source>Who is this about, what do they want, and what is missing?</source>
        <translation>Who is this about, what do they want, and what is missing?</translation>
    </message>
    <message>
        <source>The disturbance</source>
        <translation>The disturbance</translation>
    </message>
    <message>
        <source>What happens that cannot be taken back?</source>
        <translation>What happens that cannot be taken back?</translation>
    </message>
    <message>
        <source>The door closes</source>
        <translation>The door closes</translation>
    </message>
    <message>
        <source>The choice after which there is no way home.</source>
        <translation>The choice after which there is no way home.</translation>
    </message>
    <message>
        <source>Act Two</source>
        <translation>Act Two</translation>
    </message>
    <message>
        <source>The turn</source>
        <translation>The turn</translation>
    </message>
    <message>
        <source>What they believed turns out to be wrong.</source>
        <translation>What they believed turns out to be wrong.</translation>
    </message>
    <message>
        <source>The loss</source>
        <translation>The loss</translation>
    </message>
    <message>
        <source>Everything that was won is gone.</source>
        <translation>Everything that was won is gone.</translation>
    </message>
    <message>
        <source>Act Three</source>
        <translation>Act Three</translation>
    </message>
    <message>
        <source>The reckoning</source>
        <translation>The reckoning</translation>
    </message>
    <message>
        <source>They face what they fled from.</source>
        <translation>They face what they fled from.</translation>
    </message>
    <message>
        <source>What remains</source>
        <translation>What remains</translation>
    </message>
    <message>
        <source>Who are they now, and what did it cost?</source>
        <translation>Who are they now, and what did it cost?</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Premise</source>
        <translation>Premise</translation>
    </message>
    <message>
        <source># Premise

When …, someone who … must …, or else ….

# Theme

What does the story believe at its end that it did not at its beginning?</source>
        <translation># Premise

When …, someone who … must …, or else ….

# Theme

What does the story believe at its end that it did not at its beginning?</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>The whole story on one page, its end included.</source>
        <translation>The whole story on one page, its end included.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Style sheet</translation>
    </message>
    <message>
        <source>- Person and tense:
- Spelling:
- Names and how they are written:
- Numbers and dates:
- Words to avoid:</source>
        <translation>- Person and tense:
- Spelling:
- Names and how they are written:
- Numbers and dates:
- Words to avoid:</translation>
    </message>
    <message>
        <source>Research</source>
        <translation>Research</translation>
    </message>
    <message>
        <source>Main plot</source>
        <translation>Main plot</translation>
    </message>
    <message>
        <source>The question that the first chapter raises.</source>
        <translation>The question that the first chapter raises.</translation>
    </message>
    <message>
        <source>Inner change</source>
        <translation>Inner change</translation>
    </message>
    <message>
        <source>What the main character learns.</source>
        <translation>What the main character learns.</translation>
    </message>
    <message>
        <source>Subplot</source>
        <translation>Subplot</translation>
    </message>
    <message>
        <source>The same theme, seen from another side.</source>
        <translation>The same theme, seen from another side.</translation>
    </message>
    <message>
        <source>Book One</source>
        <translation>Book One</translation>
    </message>
    <message>
        <source>Book Two</source>
        <translation>Book Two</translation>
    </message>
    <message>
        <source>Book Three</source>
        <translation>Book Three</translation>
    </message>
    <message>
        <source>What this book answers, and what it leaves open for the next.</source>
        <translation>What this book answers, and what it leaves open for the next.</translation>
    </message>
    <message>
        <source>Series bible</source>
        <translation>Series bible</translation>
    </message>
    <message>
        <source>The long arc</source>
        <translation>The long arc</translation>
    </message>
    <message>
        <source># The question of the series

# How each book turns it

## Book One

## Book Two

## Book Three

# How it ends</source>
        <translation># The question of the series

# How each book turns it

## Book One

## Book Two

## Book Three

# How it ends</translation>
    </message>
    <message>
        <source>What is settled</source>
        <translation>What is settled</translation>
    </message>
    <message>
        <source>Facts that a later book must not contradict, with the chapter that set them.

- </source>
        <translation>Facts that a later book must not contradict, with the chapter that set them.

- </translation>
    </message>
    <message>
        <source>What is promised</source>
        <translation>What is promised</translation>
    </message>
    <message>
        <source>Hints and open questions, and where they are to be answered.

- </source>
        <translation>Hints and open questions, and where they are to be answered.

- </translation>
    </message>
    <message>
        <source>Rules of the world</source>
        <translation>Rules of the world</translation>
    </message>
    <message>
        <source># What is possible

# What it costs

# What is impossible</source>
        <translation># What is possible

# What it costs

# What is impossible</translation>
    </message>
    <message>
        <source>At the end of book %1</source>
        <translation>At the end of book %1</translation>
    </message>
    <message>
        <source>Peoples and languages</source>
        <translation>Peoples and languages</translation>
    </message>
    <message>
        <source>Customs</source>
        <translation>Customs</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>Speech</translation>
    </message>
    <message>
        <source>Land</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>When</source>
        <translation>When</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Consequences</source>
        <translation>Consequences</translation>
    </message>
    <message>
        <source>Glossary</source>
        <translation>Glossary</translation>
    </message>
    <message>
        <source>Pronunciation</source>
        <translation>Pronunciation</translation>
    </message>
    <message>
        <source>Series arc</source>
        <translation>Series arc</translation>
    </message>
    <message>
        <source>Runs through all books.</source>
        <translation>Runs through all books.</translation>
    </message>
    <message>
        <source>Arc of book one</source>
        <translation>Arc of book one</translation>
    </message>
    <message>
        <source>Begins and ends in the first book.</source>
        <translation>Begins and ends in the first book.</translation>
    </message>
    <message>
        <source>Arc of book two</source>
        <translation>Arc of book two</translation>
    </message>
    <message>
        <source>Begins and ends in the second book.</source>
        <translation>Begins and ends in the second book.</translation>
    </message>
    <message>
        <source>Arc of book three</source>
        <translation>Arc of book three</translation>
    </message>
    <message>
        <source>Begins and ends in the third book.</source>
        <translation>Begins and ends in the third book.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Opening</translation>
    </message>
    <message>
        <source>An image that holds the whole film.</source>
        <translation>An image that holds the whole film.</translation>
    </message>
    <message>
        <source>What sets everything off, by page 12.</source>
        <translation>What sets everything off, by page 12.</translation>
    </message>
    <message>
        <source>Into the second act</source>
        <translation>Into the second act</translation>
    </message>
    <message>
        <source>A decision, shown and not told, by page 25.</source>
        <translation>A decision, shown and not told, by page 25.</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Midpoint</translation>
    </message>
    <message>
        <source>A false victory or a false defeat.</source>
        <translation>A false victory or a false defeat.</translation>
    </message>
    <message>
        <source>All is lost</source>
        <translation>All is lost</translation>
    </message>
    <message>
        <source>The lowest point, by page 75.</source>
        <translation>The lowest point, by page 75.</translation>
    </message>
    <message>
        <source>Showdown</source>
        <translation>Showdown</translation>
    </message>
    <message>
        <source>The last confrontation.</source>
        <translation>The last confrontation.</translation>
    </message>
    <message>
        <source>Final image</source>
        <translation>Final image</translation>
    </message>
    <message>
        <source>The opening, changed.</source>
        <translation>The opening, changed.</translation>
    </message>
    <message>
        <source>FADE IN:

INT. A ROOM - DAY

What we see and hear, in the present tense.

CHARACTER
(quietly)
What is said.
</source>
        <translation>FADE IN:

INT. A ROOM - DAY

What we see and hear, in the present tense.

CHARACTER
(quietly)
What is said.
</translation>
    </message>
    <message>
        <source>Development</source>
        <translation>Development</translation>
    </message>
    <message>
        <source>Logline</source>
        <translation>Logline</translation>
    </message>
    <message>
        <source>One sentence: who, what they want, what stands in the way, what is at stake.</source>
        <translation>One sentence: who, what they want, what stands in the way, what is at stake.</translation>
    </message>
    <message>
        <source>Treatment</source>
        <translation>Treatment</translation>
    </message>
    <message>
        <source>The film in prose, in the present tense, two to five pages.</source>
        <translation>The film in prose, in the present tense, two to five pages.</translation>
    </message>
    <message>
        <source>Step outline</source>
        <translation>Step outline</translation>
    </message>
    <message>
        <source>1. </source>
        <translation>1. </translation>
    </message>
    <message>
        <source>Cast</source>
        <translation>Cast</translation>
    </message>
    <message>
        <source>Lead</source>
        <translation>Lead</translation>
    </message>
    <message>
        <source>Day player</source>
        <translation>Day player</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Playing age</source>
        <translation>Playing age</translation>
    </message>
    <message>
        <source>First impression</source>
        <translation>First impression</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Arc</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Locations</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Setting</translation>
    </message>
    <message>
        <source>Interior</source>
        <translation>Interior</translation>
    </message>
    <message>
        <source>Exterior</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Look</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Also at night</source>
        <translation>Also at night</translation>
    </message>
    <message>
        <source>Props</source>
        <translation>Props</translation>
    </message>
    <message>
        <source>A person of the cast.</source>
        <translation>A person of the cast.</translation>
    </message>
    <message>
        <source>A story</source>
        <translation>A story</translation>
    </message>
    <message>
        <source>The outer conflict.</source>
        <translation>The outer conflict.</translation>
    </message>
    <message>
        <source>B story</source>
        <translation>B story</translation>
    </message>
    <message>
        <source>The relationship that carries the theme.</source>
        <translation>The relationship that carries the theme.</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Drafts</translation>
    </message>
    <message>
        <source>Outline on cards</source>
        <translation>Outline on cards</translation>
    </message>
    <message>
        <source>First draft without looking back</source>
        <translation>First draft without looking back</translation>
    </message>
    <message>
        <source>Cut ten pages</source>
        <translation>Cut ten pages</translation>
    </message>
    <message>
        <source>Table read</source>
        <translation>Table read</translation>
    </message>
</context>
<context>
    <name>vl::app::StyleRule</name>
    <message>
        <source>Hard-to-read sentences</source>
        <translation>Hard-to-read sentences</translation>
    </message>
    <message>
        <source>Passive voice</source>
        <translation>Passive voice</translation>
    </message>
    <message>
        <source>Crutch words</source>
        <translation>Crutch words</translation>
    </message>
    <message>
        <source>Repeated words</source>
        <translation>Repeated words</translation>
    </message>
    <message>
        <source>Wordy phrases</source>
        <translation>Wordy phrases</translation>
    </message>
    <message>
        <source>Weak adverbs</source>
        <translation>Weak adverbs</translation>
    </message>
    <message>
        <source>Clichés</source>
        <translation>Clichés</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Passive voice: %1</source>
        <translation>Passive voice: %1</translation>
    </message>
    <message>
        <source>Filler word: %1</source>
        <translation>Filler word: %1</translation>
    </message>
    <message>
        <source>Repeated word: %1</source>
        <translation>Repeated word: %1</translation>
    </message>
    <message>
        <source>Adverb: %1. Consider a stronger verb.</source>
        <translation>Adverb: %1. Consider a stronger verb.</translation>
    </message>
    <message>
        <source>Cliché: %1</source>
        <translation>Cliché: %1</translation>
    </message>
    <message>
        <source>Wordy: %1 → %2</source>
        <translation>Wordy: %1 → %2</translation>
    </message>
    <message>
        <source>Long sentence (%1 words). Consider breaking it up.</source>
        <translation>Long sentence (%1 words). Consider breaking it up.</translation>
    </message>
</context>
<context>
    <name>vl::app::TextSearch</name>
    <message>
        <source>The expression takes too many steps.</source>
        <translation>The expression takes too many steps.</translation>
    </message>
</context>
<context>
    <name>vl::app::TimedValuesModel</name>
    <message>
        <source>Which field has the value?</source>
        <translation>Which field has the value?</translation>
    </message>
    <message>
        <source>“%1” is no date of the calendar.</source>
        <translation>“%1” is no date of the calendar.</translation>
    </message>
    <message>
        <source>From when on? Type a date.</source>
        <translation>From when on? Type a date.</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
</context>
<context>
    <name>vl::app::WorkingFolder</name>
    <message>
        <source>Could not clear the stale working copy: %1</source>
        <translation>Could not clear the stale working copy: %1</translation>
    </message>
    <message>
        <source>Could not refresh the project's working folder: %1</source>
        <translation>Could not refresh the project's working folder: %1</translation>
    </message>
    <message>
        <source>Could not prepare the project's working folder: %1</source>
        <translation>Could not prepare the project's working folder: %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::Arguments</name>
    <message>
        <source>Unknown option: %1</source>
        <translation>Unknown option: %1</translation>
    </message>
    <message>
        <source>The option --%1 is given twice.</source>
        <translation>The option --%1 is given twice.</translation>
    </message>
    <message>
        <source>The option --%1 takes no value.</source>
        <translation>The option --%1 takes no value.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>The option --%1 needs a value.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 is missing.</translation>
    </message>
    <message>
        <source>Too many arguments: %1</source>
        <translation>Too many arguments: %1</translation>
    </message>
    <message>
        <source>The option --%1 is missing.</source>
        <translation>The option --%1 is missing.</translation>
    </message>
    <message>
        <source>Cannot read from standard input.</source>
        <translation>Cannot read from standard input.</translation>
    </message>
    <message>
        <source>Reading the project…</source>
        <translation>Reading the project…</translation>
    </message>
    <message>
        <source>Checking the continuity…</source>
        <translation>Checking the continuity…</translation>
    </message>
    <message>
        <source>Unknown format: %1</source>
        <translation>Unknown format: %1</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exporting…</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>Making the report…</translation>
    </message>
    <message>
        <source>categories</source>
        <translation>categories</translation>
    </message>
    <message>
        <source>words</source>
        <translation>words</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>Rendering…</source>
        <translation>Rendering…</translation>
    </message>
    <message>
        <source>Checking the style…</source>
        <translation>Checking the style…</translation>
    </message>
    <message>
        <source>Comparing the folders…</source>
        <translation>Comparing the folders…</translation>
    </message>
    <message>
        <source>Writing the merged folder…</source>
        <translation>Writing the merged folder…</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>Failed to write file: %1</translation>
    </message>
    <message>
        <source>Writing the project…</source>
        <translation>Writing the project…</translation>
    </message>
    <message>
        <source>Reading what is to be imported…</source>
        <translation>Reading what is to be imported…</translation>
    </message>
    <message>
        <source>Documents added: %1</source>
        <translation>Documents added: %1</translation>
    </message>
    <message>
        <source>There is something already: %1</source>
        <translation>There is something already: %1</translation>
    </message>
    <message>
        <source>Packing…</source>
        <translation>Packing…</translation>
    </message>
    <message>
        <source>Unpacking…</source>
        <translation>Unpacking…</translation>
    </message>
    <message>
        <source>Reading the backups…</source>
        <translation>Reading the backups…</translation>
    </message>
</context>
<context>
    <name>vl::cli::Batch</name>
    <message>
        <source>Unknown unit: %1</source>
        <translation>Unknown unit: %1</translation>
    </message>
    <message>
        <source>The member "%1" is missing.</source>
        <translation>The member "%1" is missing.</translation>
    </message>
    <message>
        <source>The member "%1" must be %2.</source>
        <translation>The member "%1" must be %2.</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>a string</translation>
    </message>
    <message>
        <source>a string or null</source>
        <translation>a string or null</translation>
    </message>
    <message>
        <source>an integer of 64 bits</source>
        <translation>an integer of 64 bits</translation>
    </message>
    <message>
        <source>an integer from %1 to %2</source>
        <translation>an integer from %1 to %2</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>an array</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>an object</translation>
    </message>
    <message>
        <source>Unknown op: %1</source>
        <translation>Unknown op: %1</translation>
    </message>
    <message>
        <source>The line is not a JSON object.</source>
        <translation>The line is not a JSON object.</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>The line is too long.</translation>
    </message>
    <message>
        <source>The member "%1" is empty.</source>
        <translation>The member "%1" is empty.</translation>
    </message>
    <message>
        <source>The entry "%1" has no result.</source>
        <translation>The entry "%1" has no result.</translation>
    </message>
</context>
<context>
    <name>vl::cli::Catalogue</name>
    <message>
        <source>Count what a project holds</source>
        <translation>Count what a project holds</translation>
    </message>
    <message>
        <source>Tell whether a project loads</source>
        <translation>Tell whether a project loads</translation>
    </message>
    <message>
        <source>Turn Markdown into an HTML fragment</source>
        <translation>Turn Markdown into an HTML fragment</translation>
    </message>
    <message>
        <source>Check the style of a text, or of a project</source>
        <translation>Check the style of a text, or of a project</translation>
    </message>
    <message>
        <source>Find where the story contradicts itself: the timeline, then the rules</source>
        <translation>Find where the story contradicts itself: the timeline, then the rules</translation>
    </message>
    <message>
        <source>Report how the manuscript stands, as “markdown” or “html”</source>
        <translation>Report how the manuscript stands, as “markdown” or “html”</translation>
    </message>
    <message>
        <source>Write the manuscript as “rtf”</source>
        <translation>Write the manuscript as “rtf”</translation>
    </message>
    <message>
        <source>Answer JSON requests, one a line</source>
        <translation>Answer JSON requests, one a line</translation>
    </message>
    <message>
        <source>Usage: %1 COMMAND [ARGUMENT…]</source>
        <translation>Usage: %1 COMMAND [ARGUMENT…]</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>PROJECT is a project folder or a “.vellum” file. FILE may be “-” for standard input or output.</source>
        <translation>PROJECT is a project folder or a “.vellum” file. FILE may be “-” for standard input or output.</translation>
    </message>
    <message>
        <source>“%1 COMMAND --help” tells more about a command, “%1 --version” the version.</source>
        <translation>“%1 COMMAND --help” tells more about a command, “%1 --version” the version.</translation>
    </message>
    <message>
        <source>Exit status: 0 done; 1 done, with something to report; 2 wrong usage; 3 failed.</source>
        <translation>Exit status: 0 done; 1 done, with something to report; 2 wrong usage; 3 failed.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Usage: %1</translation>
    </message>
    <message>
        <source>No command is given.</source>
        <translation>No command is given.</translation>
    </message>
    <message>
        <source>Unknown option: %1</source>
        <translation>Unknown option: %1</translation>
    </message>
    <message>
        <source>Unknown command: %1</source>
        <translation>Unknown command: %1</translation>
    </message>
    <message>
        <source>Merge three copies of a project folder</source>
        <translation>Merge three copies of a project folder</translation>
    </message>
    <message>
        <source>Merge three versions of a file, for git too: prints the result or writes it to FILE; a NAME that ends in “.json” must stay valid</source>
        <translation>Merge three versions of a file, for git too: prints the result or writes it to FILE; a NAME that ends in “.json” must stay valid</translation>
    </message>
    <message>
        <source>Make an empty project</source>
        <translation>Make an empty project</translation>
    </message>
    <message>
        <source>Save a project as a folder or as a “.vellum” file</source>
        <translation>Save a project as a folder or as a “.vellum” file</translation>
    </message>
    <message>
        <source>Pack a folder into a “.vellum” file</source>
        <translation>Pack a folder into a “.vellum” file</translation>
    </message>
    <message>
        <source>Unpack a “.vellum” file into a folder</source>
        <translation>Unpack a “.vellum” file into a folder</translation>
    </message>
    <message>
        <source>Make a project from a “markdown” or “text” source, or add to one</source>
        <translation>Make a project from a “markdown” or “text” source, or add to one</translation>
    </message>
    <message>
        <source>Write a copy that loads, and name each file that it leaves out</source>
        <translation>Write a copy that loads, and name each file that it leaves out</translation>
    </message>
    <message>
        <source>List the backups of a project, newest first: file, date, size in bytes, documents, words</source>
        <translation>List the backups of a project, newest first: file, date, size in bytes, documents, words</translation>
    </message>
</context>
<context>
    <name>vl::cli::Main</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>Cannot write to standard output.</translation>
    </message>
</context>
<context>
    <name>vl::cli::ProjectWriting</name>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>Could not write a project file: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Could not create the folder for: %1</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Cannot create project folder: %1</translation>
    </message>
    <message>
        <source>Another project stands there: %1</source>
        <translation>Another project stands there: %1</translation>
    </message>
    <message>
        <source>The folder is not an Ivorel project (no project.json): %1</source>
        <translation>The folder is not an Ivorel project (no project.json): %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::TextFile</name>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Cannot read file: %1</translation>
    </message>
    <message>
        <source>Cannot read from standard input.</source>
        <translation>Cannot read from standard input.</translation>
    </message>
    <message>
        <source>Cannot write file: %1</source>
        <translation>Cannot write file: %1</translation>
    </message>
    <message>
        <source>Failed to write file: %1</source>
        <translation>Failed to write file: %1</translation>
    </message>
</context>
<context>
    <name>vl::cli::WriteAccess</name>
    <message>
        <source>The project may be open in another program: %1</source>
        <translation>The project may be open in another program: %1</translation>
    </message>
    <message>
        <source>Nobody knows who has it open: its lock cannot be read.</source>
        <translation>Nobody knows who has it open: its lock cannot be read.</translation>
    </message>
    <message>
        <source>The project is open in another program: %1</source>
        <translation>The project is open in another program: %1</translation>
    </message>
    <message>
        <source>%1 has it open on “%2” (process %3) since %4.</source>
        <translation>%1 has it open on “%2” (process %3) since %4.</translation>
    </message>
    <message>
        <source>Close it there, then try again.</source>
        <translation>Close it there, then try again.</translation>
    </message>
    <message>
        <source>If no program has it open any more, try again with --anyway.</source>
        <translation>If no program has it open any more, try again with --anyway.</translation>
    </message>
</context>
<context>
    <name>vl::core::Command</name>
    <message>
        <source>Set field value</source>
        <translation>Set field value</translation>
    </message>
    <message>
        <source>Add category</source>
        <translation>Add category</translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation>Remove category</translation>
    </message>
    <message>
        <source>Rename category</source>
        <translation>Rename category</translation>
    </message>
    <message>
        <source>Move category</source>
        <translation>Move category</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Add field</translation>
    </message>
    <message>
        <source>Remove field</source>
        <translation>Remove field</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Move field</translation>
    </message>
    <message>
        <source>Edit field</source>
        <translation>Edit field</translation>
    </message>
    <message>
        <source>Rename entity</source>
        <translation>Rename entity</translation>
    </message>
    <message>
        <source>Move entity</source>
        <translation>Move entity</translation>
    </message>
    <message>
        <source>Set aliases</source>
        <translation>Set aliases</translation>
    </message>
    <message>
        <source>Set entity gallery</source>
        <translation>Set entity gallery</translation>
    </message>
    <message>
        <source>Edit lifespan</source>
        <translation>Edit lifespan</translation>
    </message>
    <message>
        <source>Set state over time</source>
        <translation>Set state over time</translation>
    </message>
    <message>
        <source>Edit document body</source>
        <translation>Edit document body</translation>
    </message>
    <message>
        <source>Move document</source>
        <translation>Move document</translation>
    </message>
    <message>
        <source>Rename document</source>
        <translation>Rename document</translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation>Change document kind</translation>
    </message>
    <message>
        <source>Edit synopsis</source>
        <translation>Edit synopsis</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>Edit status</translation>
    </message>
    <message>
        <source>Edit point of view</source>
        <translation>Edit point of view</translation>
    </message>
    <message>
        <source>Edit tension</source>
        <translation>Edit tension</translation>
    </message>
    <message>
        <source>Set scene date</source>
        <translation>Set scene date</translation>
    </message>
    <message>
        <source>Set word-count target</source>
        <translation>Set word-count target</translation>
    </message>
    <message>
        <source>Cite source</source>
        <translation>Cite source</translation>
    </message>
    <message>
        <source>Tag scene plot threads</source>
        <translation>Tag scene plot threads</translation>
    </message>
    <message>
        <source>Mark screenplay revision</source>
        <translation>Mark screenplay revision</translation>
    </message>
    <message>
        <source>Edit version history</source>
        <translation>Edit version history</translation>
    </message>
    <message>
        <source>Edit document variants</source>
        <translation>Edit document variants</translation>
    </message>
    <message>
        <source>Edit footnotes</source>
        <translation>Edit footnotes</translation>
    </message>
    <message>
        <source>Add object</source>
        <translation>Add object</translation>
    </message>
    <message>
        <source>Remove object</source>
        <translation>Remove object</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Pin</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Unpin</translation>
    </message>
    <message>
        <source>Set AI exclusion</source>
        <translation>Set AI exclusion</translation>
    </message>
    <message>
        <source>Set tags</source>
        <translation>Set tags</translation>
    </message>
    <message>
        <source>Set visibility</source>
        <translation>Set visibility</translation>
    </message>
    <message>
        <source>Update entity templates</source>
        <translation>Update entity templates</translation>
    </message>
    <message>
        <source>Update saved searches</source>
        <translation>Update saved searches</translation>
    </message>
    <message>
        <source>Edit audiences</source>
        <translation>Edit audiences</translation>
    </message>
    <message>
        <source>Edit plot threads</source>
        <translation>Edit plot threads</translation>
    </message>
    <message>
        <source>Set continuity rules</source>
        <translation>Set continuity rules</translation>
    </message>
    <message>
        <source>Set calendar</source>
        <translation>Set calendar</translation>
    </message>
    <message>
        <source>Set reckonings</source>
        <translation>Set reckonings</translation>
    </message>
    <message>
        <source>Set timeline eras</source>
        <translation>Set timeline eras</translation>
    </message>
    <message>
        <source>Set timeline markers</source>
        <translation>Set timeline markers</translation>
    </message>
    <message>
        <source>Set timeline bookmarks</source>
        <translation>Set timeline bookmarks</translation>
    </message>
    <message>
        <source>Change timeline view</source>
        <translation>Change timeline view</translation>
    </message>
    <message>
        <source>Update timeline view presets</source>
        <translation>Update timeline view presets</translation>
    </message>
    <message>
        <source>Edit beat sheet</source>
        <translation>Edit beat sheet</translation>
    </message>
    <message>
        <source>Set writing goal</source>
        <translation>Set writing goal</translation>
    </message>
    <message>
        <source>Update mounted libraries</source>
        <translation>Update mounted libraries</translation>
    </message>
    <message>
        <source>Complete task</source>
        <translation>Complete task</translation>
    </message>
    <message>
        <source>Reopen task</source>
        <translation>Reopen task</translation>
    </message>
    <message>
        <source>Move task</source>
        <translation>Move task</translation>
    </message>
    <message>
        <source>Edit cell</source>
        <translation>Edit cell</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Edit chart</translation>
    </message>
    <message>
        <source>Edit comment</source>
        <translation>Edit comment</translation>
    </message>
    <message>
        <source>Move comment</source>
        <translation>Move comment</translation>
    </message>
    <message>
        <source>Rename spreadsheet</source>
        <translation>Rename spreadsheet</translation>
    </message>
    <message>
        <source>Update spreadsheet</source>
        <translation>Update spreadsheet</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Resize</translation>
    </message>
    <message>
        <source>Bind spreadsheet to category</source>
        <translation>Bind spreadsheet to category</translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation>Rename task</translation>
    </message>
    <message>
        <source>Edit task details</source>
        <translation>Edit task details</translation>
    </message>
    <message>
        <source>Change task due date</source>
        <translation>Change task due date</translation>
    </message>
    <message>
        <source>Change task priority</source>
        <translation>Change task priority</translation>
    </message>
    <message>
        <source>Change task status</source>
        <translation>Change task status</translation>
    </message>
    <message>
        <source>Move task to board</source>
        <translation>Move task to board</translation>
    </message>
    <message>
        <source>Change submission details</source>
        <translation>Change submission details</translation>
    </message>
    <message>
        <source>Link task</source>
        <translation>Link task</translation>
    </message>
    <message>
        <source>Move card</source>
        <translation>Move card</translation>
    </message>
    <message>
        <source>Remove card</source>
        <translation>Remove card</translation>
    </message>
    <message>
        <source>Connect cards</source>
        <translation>Connect cards</translation>
    </message>
    <message>
        <source>Disconnect cards</source>
        <translation>Disconnect cards</translation>
    </message>
    <message>
        <source>Add annotation</source>
        <translation>Add annotation</translation>
    </message>
    <message>
        <source>Remove annotation</source>
        <translation>Remove annotation</translation>
    </message>
    <message>
        <source>Rename timeline</source>
        <translation>Rename timeline</translation>
    </message>
    <message>
        <source>Edit timeline event</source>
        <translation>Edit timeline event</translation>
    </message>
    <message>
        <source>Edit language</source>
        <translation>Edit language</translation>
    </message>
    <message>
        <source>Edit random table</source>
        <translation>Edit random table</translation>
    </message>
    <message>
        <source>Edit source</source>
        <translation>Edit source</translation>
    </message>
    <message>
        <source>Edit stat block</source>
        <translation>Edit stat block</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Edit caption</translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation>Crop image</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Rename map</translation>
    </message>
    <message>
        <source>Set map image</source>
        <translation>Set map image</translation>
    </message>
    <message>
        <source>Edit map pins</source>
        <translation>Edit map pins</translation>
    </message>
    <message>
        <source>Edit map regions</source>
        <translation>Edit map regions</translation>
    </message>
    <message>
        <source>Edit map routes</source>
        <translation>Edit map routes</translation>
    </message>
    <message>
        <source>Edit map tokens</source>
        <translation>Edit map tokens</translation>
    </message>
    <message>
        <source>Edit map grid</source>
        <translation>Edit map grid</translation>
    </message>
    <message>
        <source>Set map travel settings</source>
        <translation>Set map travel settings</translation>
    </message>
    <message>
        <source>Rename canvas</source>
        <translation>Rename canvas</translation>
    </message>
</context>
<context>
    <name>vl::desktop::AboutDialog</name>
    <message>
        <source>About Ivorel</source>
        <translation>About Ivorel</translation>
    </message>
    <message>
        <source>Ivorel %1</source>
        <translation>Ivorel %1</translation>
    </message>
    <message>
        <source>A workspace for writing and worldbuilding.</source>
        <translation>A workspace for writing and worldbuilding.</translation>
    </message>
    <message>
        <source>Runs with Qt %1.</source>
        <translation>Runs with Qt %1.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open the folder: %1</source>
        <translation>Open the folder: %1</translation>
    </message>
    <message>
        <source>Third-party software and its licences</source>
        <translation>Third-party software and its licences</translation>
    </message>
    <message>
        <source>Replaced versions</source>
        <translation>Replaced versions</translation>
    </message>
</context>
<context>
    <name>vl::desktop::AppearancePage</name>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Texts of the interface</source>
        <translation>Texts of the interface</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Font &amp;scale:</source>
        <translation>Font &amp;scale:</translation>
    </message>
</context>
<context>
    <name>vl::desktop::BackupsDialog</name>
    <message>
        <source>Open a &amp;Copy…</source>
        <translation>Open a &amp;Copy…</translation>
    </message>
    <message>
        <source>&amp;Restore This Document…</source>
        <translation>&amp;Restore This Document…</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Ivorel makes a backup when you open a project, when you close it and once a day, if anything changed.</source>
        <translation>Ivorel makes a backup when you open a project, when you close it and once a day, if anything changed.</translation>
    </message>
    <message>
        <source>There are no backups of this project yet.</source>
        <translation>There are no backups of this project yet.</translation>
    </message>
    <message>
        <source>They are in %1</source>
        <translation>They are in %1</translation>
    </message>
    <message>
        <source>Show &amp;Folder</source>
        <translation>Show &amp;Folder</translation>
    </message>
    <message>
        <source>&amp;Back Up Now</source>
        <translation>&amp;Back Up Now</translation>
    </message>
</context>
<context>
    <name>vl::desktop::BackupsPage</name>
    <message>
        <source>Made by themselves</source>
        <translation>Made by themselves</translation>
    </message>
    <message>
        <source>Where they lie</source>
        <translation>Where they lie</translation>
    </message>
    <message>
        <source>Folder of the backups</source>
        <translation>Folder of the backups</translation>
    </message>
    <message>
        <source>&amp;Open Folder</source>
        <translation>&amp;Open Folder</translation>
    </message>
    <message>
        <source>Backups of This &amp;Project…</source>
        <translation>Backups of This &amp;Project…</translation>
    </message>
    <message>
        <source>&amp;Back up projects without being asked</source>
        <translation>&amp;Back up projects without being asked</translation>
    </message>
    <message>
        <source>A project is backed up when it is opened, when it is closed and once a day, unless the newest backup holds the same. The last five are kept, one a day of the last week, one a week of the last two months, and those that you made yourself.</source>
        <translation>A project is backed up when it is opened, when it is closed and once a day, unless the newest backup holds the same. The last five are kept, one a day of the last week, one a week of the last two months, and those that you made yourself.</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choose…</translation>
    </message>
    <message>
        <source>Folder of the Backups</source>
        <translation>Folder of the Backups</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ChoiceFieldEditor</name>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 (no option)</source>
        <translation>%1 (no option)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CodexDialogs</name>
    <message>
        <source>Merge Entities</source>
        <translation>Merge Entities</translation>
    </message>
    <message>
        <source>“%1” becomes a part of “%2”: its name stays as an alias, and what refers to it refers to “%2”.</source>
        <translation>“%1” becomes a part of “%2”: its name stays as an alias, and what refers to it refers to “%2”.</translation>
    </message>
    <message>
        <source>“%1” becomes a part of “%2”. Where both have a value, which one stays?</source>
        <translation>“%1” becomes a part of “%2”. Where both have a value, which one stays?</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Split Entity</source>
        <translation>Split Entity</translation>
    </message>
    <message>
        <source>A part of “%1” becomes an entity of its own. What does it take along?</source>
        <translation>A part of “%1” becomes an entity of its own. What does it take along?</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Name of the new entity</source>
        <translation>Name of the new entity</translation>
    </message>
    <message>
        <source>Fields and aliases</source>
        <translation>Fields and aliases</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>Manage Entity Templates</source>
        <translation>Manage Entity Templates</translation>
    </message>
    <message>
        <source>Rename a template in the list; drag to put it elsewhere.</source>
        <translation>Rename a template in the list; drag to put it elsewhere.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Entity templates</source>
        <translation>Entity templates</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CodexPanel</name>
    <message>
        <source>Category…</source>
        <translation>Category…</translation>
    </message>
    <message>
        <source>Subcategory…</source>
        <translation>Subcategory…</translation>
    </message>
    <message>
        <source>Entity…</source>
        <translation>Entity…</translation>
    </message>
    <message>
        <source>Entity from Template…</source>
        <translation>Entity from Template…</translation>
    </message>
    <message>
        <source>Field…</source>
        <translation>Field…</translation>
    </message>
    <message>
        <source>Task for Entity…</source>
        <translation>Task for Entity…</translation>
    </message>
    <message>
        <source>Rename Entity…</source>
        <translation>Rename Entity…</translation>
    </message>
    <message>
        <source>Duplicate Entity</source>
        <translation>Duplicate Entity</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Rename Category…</source>
        <translation>Rename Category…</translation>
    </message>
    <message>
        <source>Delete Entity</source>
        <translation>Delete Entity</translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Delete Category</translation>
    </message>
    <message>
        <source>Toggle Pin</source>
        <translation>Toggle Pin</translation>
    </message>
    <message>
        <source>Edit Tags…</source>
        <translation>Edit Tags…</translation>
    </message>
    <message>
        <source>Save Entity as Template…</source>
        <translation>Save Entity as Template…</translation>
    </message>
    <message>
        <source>Manage Entity Templates…</source>
        <translation>Manage Entity Templates…</translation>
    </message>
    <message>
        <source>Merge Entity Into…</source>
        <translation>Merge Entity Into…</translation>
    </message>
    <message>
        <source>Split Entity…</source>
        <translation>Split Entity…</translation>
    </message>
    <message>
        <source>State Over Time…</source>
        <translation>State Over Time…</translation>
    </message>
    <message>
        <source>Draft Details with AI…</source>
        <translation>Draft Details with AI…</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>New Entity</source>
        <translation>New Entity</translation>
    </message>
    <message>
        <source>New ▾</source>
        <translation>New ▾</translation>
    </message>
    <message>
        <source>Add to the codex</source>
        <translation>Add to the codex</translation>
    </message>
    <message>
        <source>More ▾</source>
        <translation>More ▾</translation>
    </message>
    <message>
        <source>Change what is selected in the codex</source>
        <translation>Change what is selected in the codex</translation>
    </message>
    <message>
        <source>Filter the codex by name, alias or tag</source>
        <translation>Filter the codex by name, alias or tag</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>Your worldbuilding codex: categories and entities. Right-click for actions; F2 renames, Del deletes.</source>
        <translation>Your worldbuilding codex: categories and entities. Right-click for actions; F2 renames, Del deletes.</translation>
    </message>
    <message>
        <source>The people, places and things of your world stand here, sorted into categories.</source>
        <translation>The people, places and things of your world stand here, sorted into categories.</translation>
    </message>
    <message>
        <source>Add the First Category</source>
        <translation>Add the First Category</translation>
    </message>
    <message>
        <source>Nothing in the codex has this name, alias or tag.</source>
        <translation>Nothing in the codex has this name, alias or tag.</translation>
    </message>
    <message>
        <source>Clear the Filter</source>
        <translation>Clear the Filter</translation>
    </message>
    <message>
        <source>Entity from Template</source>
        <translation>Entity from Template</translation>
    </message>
    <message>
        <source>Template:</source>
        <translation>Template:</translation>
    </message>
    <message>
        <source>Add Entity</source>
        <translation>Add Entity</translation>
    </message>
    <message>
        <source>The field “%1” was added.</source>
        <translation>The field “%1” was added.</translation>
    </message>
    <message>
        <source>Task for Entity</source>
        <translation>Task for Entity</translation>
    </message>
    <message>
        <source>Task:</source>
        <translation>Task:</translation>
    </message>
    <message>
        <source>The task “%1” was added.</source>
        <translation>The task “%1” was added.</translation>
    </message>
    <message>
        <source>%1 done.</source>
        <translation>%1 done.</translation>
    </message>
    <message>
        <source>Tags that all of them have, separated by commas:</source>
        <translation>Tags that all of them have, separated by commas:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Tags, separated by commas:</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>Edit Tags</translation>
    </message>
    <message>
        <source>Save Entity as Template</source>
        <translation>Save Entity as Template</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>The template “%1” was saved.</source>
        <translation>The template “%1” was saved.</translation>
    </message>
    <message>
        <source>Merge Entity Into</source>
        <translation>Merge Entity Into</translation>
    </message>
    <message>
        <source>Merge “%1” into:</source>
        <translation>Merge “%1” into:</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>“%1” was merged.</source>
        <translation>“%1” was merged.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>vl::desktop::CrashRecovery</name>
    <message>
        <source>⚠ Not safe from a crash: %1</source>
        <translation>⚠ Not safe from a crash: %1</translation>
    </message>
    <message>
        <source>What is not saved cannot be written to %1: %2. It is tried again every second; what you save is safe.</source>
        <translation>What is not saved cannot be written to %1: %2. It is tried again every second; what you save is safe.</translation>
    </message>
    <message>
        <source>Ivorel was cut off before all was saved. Unsaved work was found: %1.</source>
        <translation>Ivorel was cut off before all was saved. Unsaved work was found: %1.</translation>
    </message>
    <message>
        <source>&amp;Compare and Restore…</source>
        <translation>&amp;Compare and Restore…</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>A project that was never saved was found after Ivorel was cut off: %1.</source>
        <translation>A project that was never saved was found after Ivorel was cut off: %1.</translation>
    </message>
    <message>
        <source>&amp;Look and Restore…</source>
        <translation>&amp;Look and Restore…</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>Unsaved work of “%1” was found after Ivorel was cut off: %2.</source>
        <translation>Unsaved work of “%1” was found after Ivorel was cut off: %2.</translation>
    </message>
    <message>
        <source>&amp;Open “%1”</source>
        <translation>&amp;Open “%1”</translation>
    </message>
    <message>
        <source>Unsaved work of “%1” was found after Ivorel was cut off: %2. The project is not there any more: %3</source>
        <translation>Unsaved work of “%1” was found after Ivorel was cut off: %2. The project is not there any more: %3</translation>
    </message>
    <message>
        <source>&amp;Find the Project…</source>
        <translation>&amp;Find the Project…</translation>
    </message>
    <message>
        <source>Restore as a &amp;New Project</source>
        <translation>Restore as a &amp;New Project</translation>
    </message>
    <message numerus="yes">
        <source>Discarded. File › Unsaved Work… keeps it for %n day(s).</source>
        <translation>
            <numerusform>Discarded. File › Unsaved Work… keeps it for %n day.</numerusform>
            <numerusform>Discarded. File › Unsaved Work… keeps it for %n days.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved Work</source>
        <translation>Unsaved Work</translation>
    </message>
    <message>
        <source>What was found cannot be read, and nothing was restored.</source>
        <translation>What was found cannot be read, and nothing was restored.</translation>
    </message>
    <message>
        <source>The unsaved work is restored.</source>
        <translation>The unsaved work is restored.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>not decided</source>
        <translation>not decided</translation>
    </message>
    <message>
        <source>%1 (%2): %3</source>
        <comment>project, time, what it holds</comment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message numerus="yes">
        <source>Nothing unsaved was found in the last %n day(s).</source>
        <translation>
            <numerusform>Nothing unsaved was found in the last %n day.</numerusform>
            <numerusform>Nothing unsaved was found in the last %n days.</numerusform>
        </translation>
    </message>
    <message>
        <source>Work that was not saved when Ivorel was cut off:</source>
        <translation>Work that was not saved when Ivorel was cut off:</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Show</translation>
    </message>
    <message>
        <source>All of it is in the project.</source>
        <translation>All of it is in the project.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DamagedProjectDialog</name>
    <message>
        <source>Open Project</source>
        <translation>Open Project</translation>
    </message>
    <message>
        <source>The project does not load. Nothing in it was changed.</source>
        <translation>The project does not load. Nothing in it was changed.</translation>
    </message>
    <message numerus="yes">
        <source>A repaired copy leaves out %n file(s):</source>
        <translation>
            <numerusform>A repaired copy leaves out %n file:</numerusform>
            <numerusform>A repaired copy leaves out %n files:</numerusform>
        </translation>
    </message>
    <message>
        <source>Files that a repaired copy leaves out</source>
        <translation>Files that a repaired copy leaves out</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>Open newest &amp;backup</source>
        <translation>Open newest &amp;backup</translation>
    </message>
    <message>
        <source>As a copy in a place that you choose. It was made: %1</source>
        <translation>As a copy in a place that you choose. It was made: %1</translation>
    </message>
    <message>
        <source>In a place that you choose; this project stays as it is.</source>
        <translation>In a place that you choose; this project stays as it is.</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged file(s) can be taken from the working copy.</source>
        <translation>
            <numerusform>%n damaged file can be taken from the working copy.</numerusform>
            <numerusform>%n damaged files can be taken from the working copy.</numerusform>
        </translation>
    </message>
    <message>
        <source>Make a &amp;repaired copy without the damaged files</source>
        <translation>Make a &amp;repaired copy without the damaged files</translation>
    </message>
    <message>
        <source>&amp;Set the conflicting copies aside</source>
        <translation>&amp;Set the conflicting copies aside</translation>
    </message>
    <message>
        <source>They go into the folder “conflicting copies” of the project, then it opens.</source>
        <translation>They go into the folder “conflicting copies” of the project, then it opens.</translation>
    </message>
    <message>
        <source>The list of what the file holds is damaged or missing too: more may be gone than can be named.</source>
        <translation>The list of what the file holds is damaged or missing too: more may be gone than can be named.</translation>
    </message>
    <message>
        <source>“%1” (%2)</source>
        <translation>“%1” (%2)</translation>
    </message>
    <message>
        <source>What can still be read of it:</source>
        <translation>What can still be read of it:</translation>
    </message>
    <message>
        <source>In the newest backup:</source>
        <translation>In the newest backup:</translation>
    </message>
    <message>
        <source>Conflicting copy of “%1” (%2)</source>
        <translation>Conflicting copy of “%1” (%2)</translation>
    </message>
    <message>
        <source>The file that stays in red (−), the conflicting copy in green (+)</source>
        <translation>The file that stays in red (−), the conflicting copy in green (+)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DialogPrompts</name>
    <message>
        <source>Unsaved Changes</source>
        <translation>Unsaved Changes</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>“%1” has changes that are not saved.</translation>
    </message>
    <message>
        <source>What you wrote since the last save is lost if you discard it.</source>
        <translation>What you wrote since the last save is lost if you discard it.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Discard Changes</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Open Project</translation>
    </message>
    <message>
        <source>Ivorel projects (*.vellum)</source>
        <translation>Ivorel projects (*.vellum)</translation>
    </message>
    <message>
        <source>Open Project Folder</source>
        <translation>Open Project Folder</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Save Project As</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>“%1” exists already.</translation>
    </message>
    <message>
        <source>Its contents are replaced.</source>
        <translation>Its contents are replaced.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Save Project as Folder</source>
        <translation>Save Project as Folder</translation>
    </message>
    <message>
        <source>“%1” is open already.</source>
        <translation>“%1” is open already.</translation>
    </message>
    <message>
        <source>Nobody knows who has it open: its lock cannot be read.</source>
        <translation>Nobody knows who has it open: its lock cannot be read.</translation>
    </message>
    <message>
        <source>%1 has it open on “%2” (process %3) since %4.</source>
        <translation>%1 has it open on “%2” (process %3) since %4.</translation>
    </message>
    <message>
        <source>If no program has it open any more, a crash or a broken connection left the lock behind; then open it anyway.</source>
        <translation>If no program has it open any more, a crash or a broken connection left the lock behind; then open it anyway.</translation>
    </message>
    <message>
        <source>Open a &amp;Copy…</source>
        <translation>Open a &amp;Copy…</translation>
    </message>
    <message>
        <source>Open &amp;Read-Only</source>
        <translation>Open &amp;Read-Only</translation>
    </message>
    <message>
        <source>Open &amp;Anyway</source>
        <translation>Open &amp;Anyway</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Differences</translation>
    </message>
    <message>
        <source>Both are the same.</source>
        <translation>Both are the same.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DistractionFree</name>
    <message>
        <source>Distraction-Free Mode</source>
        <translation>Distraction-Free Mode</translation>
    </message>
    <message>
        <source>Word count</source>
        <translation>Word count</translation>
    </message>
</context>
<context>
    <name>vl::desktop::DocumentsPanel</name>
    <message>
        <source>New ▾</source>
        <translation>New ▾</translation>
    </message>
    <message>
        <source>New document or note</source>
        <translation>New document or note</translation>
    </message>
    <message>
        <source>Add a document or a note behind the selected one.</source>
        <translation>Add a document or a note behind the selected one.</translation>
    </message>
    <message>
        <source>Filter the documents by title</source>
        <translation>Filter the documents by title</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>The manuscript: documents and notes. Drag to reorder or drop onto another to nest; right-click for actions; Ins adds, F2 renames, Del deletes.</source>
        <translation>The manuscript: documents and notes. Drag to reorder or drop onto another to nest; right-click for actions; Ins adds, F2 renames, Del deletes.</translation>
    </message>
    <message>
        <source>The chapters and scenes of your manuscript stand here.</source>
        <translation>The chapters and scenes of your manuscript stand here.</translation>
    </message>
    <message>
        <source>Write the First Document</source>
        <translation>Write the First Document</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Delete…</translation>
    </message>
    <message>
        <source>Prose</source>
        <translation>Prose</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Screenplay</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Edit › Undo will restore it.</source>
        <translation>Edit › Undo will restore it.</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n document(s).</source>
        <translation>
            <numerusform>Deleted %n document.</numerusform>
            <numerusform>Deleted %n documents.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Document(s)</source>
        <translation>
            <numerusform>Delete %n Document</numerusform>
            <numerusform>Delete %n Documents</numerusform>
        </translation>
    </message>
    <message>
        <source>Task for Document</source>
        <translation>Task for Document</translation>
    </message>
    <message>
        <source>Task:</source>
        <translation>Task:</translation>
    </message>
    <message>
        <source>The task “%1” was added.</source>
        <translation>The task “%1” was added.</translation>
    </message>
    <message>
        <source>Change Kind</source>
        <translation>Change Kind</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Kind:</translation>
    </message>
    <message>
        <source>No document has this title.</source>
        <translation>No document has this title.</translation>
    </message>
    <message>
        <source>Clear the Filter</source>
        <translation>Clear the Filter</translation>
    </message>
    <message>
        <source>More ▾</source>
        <translation>More ▾</translation>
    </message>
    <message>
        <source>Change the selected documents</source>
        <translation>Change the selected documents</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Download</name>
    <message>
        <source>The server took too long to answer.</source>
        <translation>The server took too long to answer.</translation>
    </message>
    <message>
        <source>The address is not a secure one.</source>
        <translation>The address is not a secure one.</translation>
    </message>
    <message>
        <source>The server sent more than was expected.</source>
        <translation>The server sent more than was expected.</translation>
    </message>
    <message>
        <source>The server sent the program elsewhere.</source>
        <translation>The server sent the program elsewhere.</translation>
    </message>
    <message>
        <source>The server sent the program round in circles.</source>
        <translation>The server sent the program round in circles.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::EditorPage</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Best installed reading font</source>
        <translation>Best installed reading font</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Font:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Size:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Line &amp;width:</source>
        <translation>Line &amp;width:</translation>
    </message>
    <message>
        <source> characters</source>
        <translation> characters</translation>
    </message>
    <message>
        <source>Line s&amp;pacing:</source>
        <translation>Line s&amp;pacing:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Typing</source>
        <translation>Typing</translation>
    </message>
    <message>
        <source>Typographic &amp;quotes and dashes</source>
        <translation>Typographic &amp;quotes and dashes</translation>
    </message>
    <message>
        <source>Turns straight ones into them as you type.</source>
        <translation>Turns straight ones into them as you type.</translation>
    </message>
    <message>
        <source>T&amp;ypewriter scrolling</source>
        <translation>T&amp;ypewriter scrolling</translation>
    </message>
    <message>
        <source>Keeps the line being written at the same height.</source>
        <translation>Keeps the line being written at the same height.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::EditorPanel</name>
    <message>
        <source>Text of the document</source>
        <translation>Text of the document</translation>
    </message>
    <message>
        <source>Select a document to write in it.</source>
        <translation>Select a document to write in it.</translation>
    </message>
    <message>
        <source>Title of the document</source>
        <translation>Title of the document</translation>
    </message>
    <message>
        <source>Word count</source>
        <translation>Word count</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>New Document</translation>
    </message>
    <message>
        <source>Today %1 · %2</source>
        <comment>words typed today, words of the document</comment>
        <translation>Today %1 · %2</translation>
    </message>
    <message>
        <source>Today: words typed less words deleted. Pasted text is not counted.</source>
        <translation>Today: words typed less words deleted. Pasted text is not counted.</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>Insert Picture</source>
        <translation>Insert Picture</translation>
    </message>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::ExternalChangesDialog</name>
    <message>
        <source>&amp;Keep my version</source>
        <translation>&amp;Keep my version</translation>
    </message>
    <message>
        <source>&amp;Take on-disk version</source>
        <translation>&amp;Take on-disk version</translation>
    </message>
    <message>
        <source>&amp;Edit merged text…</source>
        <translation>&amp;Edit merged text…</translation>
    </message>
    <message>
        <source>&amp;Apply Resolution</source>
        <translation>&amp;Apply Resolution</translation>
    </message>
    <message>
        <source>External Changes</source>
        <translation>External Changes</translation>
    </message>
    <message>
        <source>These files changed outside Ivorel while the project was open. Decide which version counts. The project is backed up before anything is applied, and applying it is one step that you can undo.</source>
        <translation>These files changed outside Ivorel while the project was open. Decide which version counts. The project is backed up before anything is applied, and applying it is one step that you can undo.</translation>
    </message>
    <message>
        <source>Changed files</source>
        <translation>Changed files</translation>
    </message>
    <message>
        <source>Differences for the selected file — your version in red (−), the on-disk version in green (+):</source>
        <translation>Differences for the selected file — your version in red (−), the on-disk version in green (+):</translation>
    </message>
    <message>
        <source>Where both changed the text, your lines stand first and those on disk after them, with marks around them. Make one text of it and remove the marks:</source>
        <translation>Where both changed the text, your lines stand first and those on disk after them, with marks around them. Make one text of it and remove the marks:</translation>
    </message>
    <message>
        <source>Merged text</source>
        <translation>Merged text</translation>
    </message>
    <message>
        <source>&amp;Use this text</source>
        <translation>&amp;Use this text</translation>
    </message>
    <message>
        <source>&amp;Back to the differences</source>
        <translation>&amp;Back to the differences</translation>
    </message>
    <message>
        <source>The versions of this file cannot be edited into one text.</source>
        <translation>The versions of this file cannot be edited into one text.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>Every file is decided.</source>
        <translation>Every file is decided.</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n file(s) still to be decided.</source>
        <translation>
            <numerusform>⚠ %n file still to be decided.</numerusform>
            <numerusform>⚠ %n files still to be decided.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldDialog</name>
    <message>
        <source>&amp;Options, one a line:</source>
        <translation>&amp;Options, one a line:</translation>
    </message>
    <message>
        <source>To be filled for every &amp;entity</source>
        <translation>To be filled for every &amp;entity</translation>
    </message>
    <message>
        <source>Options, one a line</source>
        <translation>Options, one a line</translation>
    </message>
    <message>
        <source>Label of the field</source>
        <translation>Label of the field</translation>
    </message>
    <message>
        <source>Type of the field</source>
        <translation>Type of the field</translation>
    </message>
    <message>
        <source>What to fill in</source>
        <translation>What to fill in</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Label:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type:</translation>
    </message>
    <message>
        <source>&amp;Help text:</source>
        <translation>&amp;Help text:</translation>
    </message>
    <message>
        <source>New Field of “%1”</source>
        <translation>New Field of “%1”</translation>
    </message>
    <message>
        <source>Add Field</source>
        <translation>Add Field</translation>
    </message>
    <message>
        <source>Field “%1”</source>
        <translation>Field “%1”</translation>
    </message>
    <message>
        <source>Change Field</source>
        <translation>Change Field</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldEditor</name>
    <message>
        <source>(mixed)</source>
        <translation>(mixed)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FieldListEditor</name>
    <message>
        <source>Every entity of the category, and of those below it, has these.</source>
        <translation>Every entity of the category, and of those below it, has these.</translation>
    </message>
    <message>
        <source>Add a field</source>
        <translation>Add a field</translation>
    </message>
    <message>
        <source>Change the field</source>
        <translation>Change the field</translation>
    </message>
    <message>
        <source>Move the field up</source>
        <translation>Move the field up</translation>
    </message>
    <message>
        <source>Move the field down</source>
        <translation>Move the field down</translation>
    </message>
    <message>
        <source>Remove the field</source>
        <translation>Remove the field</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1, to be filled</source>
        <translation>%1, to be filled</translation>
    </message>
    <message>
        <source>The field was removed; what entities have in it is kept.</source>
        <translation>The field was removed; what entities have in it is kept.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::FindInProject</name>
    <message>
        <source>Manuscript</source>
        <translation>Manuscript</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Synopses and Planning</source>
        <translation>Synopses and Planning</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Codex</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Timeline</translation>
    </message>
    <message>
        <source>Everything Else</source>
        <translation>Everything Else</translation>
    </message>
    <message>
        <source>&amp;Replace with:</source>
        <translation>&amp;Replace with:</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>Find in Project</source>
        <translation>Find in Project</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Find:</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Text to find</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Whole words</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regular expression</translation>
    </message>
    <message>
        <source>Text to replace it with</source>
        <translation>Text to replace it with</translation>
    </message>
    <message>
        <source>Keep the case of what is replaced</source>
        <translation>Keep the case of what is replaced</translation>
    </message>
    <message>
        <source>&amp;In:</source>
        <translation>&amp;In:</translation>
    </message>
    <message>
        <source>How far the search is</source>
        <translation>How far the search is</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Everywhere</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Places found</translation>
    </message>
    <message>
        <source>How much was found</source>
        <translation>How much was found</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation>Nowhere</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message>
        <source>Where to search: %1</source>
        <translation>Where to search: %1</translation>
    </message>
    <message>
        <source>The first %1 places are listed.</source>
        <translation>The first %1 places are listed.</translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) in %1</source>
        <translation>
            <numerusform>%n place in %1</numerusform>
            <numerusform>%n places in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n object(s)</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a word in the manuscript, the notes, the codex, the comments and all other texts of the project.</source>
        <translation>Find a word in the manuscript, the notes, the codex, the comments and all other texts of the project.</translation>
    </message>
    <message>
        <source>“%1” is nowhere to be found.</source>
        <translation>“%1” is nowhere to be found.</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n &amp;Place(s)</source>
        <translation>
            <numerusform>Replace %n &amp;Place</numerusform>
            <numerusform>Replace %n &amp;Places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %n place(s) in %1.</source>
        <translation>
            <numerusform>Replaced %n place in %1.</numerusform>
            <numerusform>Replaced %n places in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n place(s) had changed since the search and stayed as they are.</source>
        <translation>
            <numerusform>%n place had changed since the search and stayed as they are.</numerusform>
            <numerusform>%n places had changed since the search and stayed as they are.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::FindStrip</name>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Whole words</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regular expression</translation>
    </message>
    <message>
        <source>In the selection only</source>
        <translation>In the selection only</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Hits</translation>
    </message>
    <message>
        <source>Previous (Shift+Enter)</source>
        <translation>Previous (Shift+Enter)</translation>
    </message>
    <message>
        <source>Next (Enter)</source>
        <translation>Next (Enter)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Close (Esc)</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Replace with</translation>
    </message>
    <message>
        <source>“Tide” becomes “Ebb” and “TIDE” becomes “EBB”.</source>
        <translation>“Tide” becomes “Ebb” and “TIDE” becomes “EBB”.</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Re&amp;place</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>Replace A&amp;ll</translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation>%1 replaced</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>more than %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>the hit that is shown, all hits</comment>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Keep the case of what is replaced</source>
        <translation>Keep the case of what is replaced</translation>
    </message>
</context>
<context>
    <name>vl::desktop::GeneralPage</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>As the system</translation>
    </message>
    <message>
        <source>&amp;Interface language:</source>
        <translation>&amp;Interface language:</translation>
    </message>
    <message>
        <source>Re&amp;open the last project</source>
        <translation>Re&amp;open the last project</translation>
    </message>
</context>
<context>
    <name>vl::desktop::HandOver</name>
    <message>
        <source>Open Project</source>
        <translation>Open Project</translation>
    </message>
    <message>
        <source>The project could not be found: %1</source>
        <translation>The project could not be found: %1</translation>
    </message>
    <message>
        <source>Ivorel is already open. Where should “%1” open?</source>
        <translation>Ivorel is already open. Where should “%1” open?</translation>
    </message>
    <message>
        <source>This Window</source>
        <translation>This Window</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>New Window</translation>
    </message>
    <message>
        <source>A new window could not be opened.</source>
        <translation>A new window could not be opened.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::InspectorPanel</name>
    <message>
        <source>Select a document or an entity to see and change what is known of it.</source>
        <translation>Select a document or an entity to see and change what is known of it.</translation>
    </message>
    <message>
        <source>Show a Document</source>
        <translation>Show a Document</translation>
    </message>
    <message>
        <source>What is selected</source>
        <translation>What is selected</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Layouts</name>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Save Current Layout</source>
        <translation>Save Current Layout</translation>
    </message>
    <message>
        <source>The present arrangement takes its place.</source>
        <translation>The present arrangement takes its place.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>The perspective “%1” cannot be read; the first layout is shown instead.</source>
        <translation>The perspective “%1” cannot be read; the first layout is shown instead.</translation>
    </message>
    <message>
        <source>Deleted the perspective “%1”.</source>
        <translation>Deleted the perspective “%1”.</translation>
    </message>
    <message>
        <source>Name of the perspective:</source>
        <translation>Name of the perspective:</translation>
    </message>
    <message>
        <source>“%1” is a perspective that comes with Ivorel. Choose another name.</source>
        <translation>“%1” is a perspective that comes with Ivorel. Choose another name.</translation>
    </message>
    <message>
        <source>There is a perspective “%1” already.</source>
        <translation>There is a perspective “%1” already.</translation>
    </message>
    <message>
        <source>Saved the perspective “%1”.</source>
        <translation>Saved the perspective “%1”.</translation>
    </message>
    <message>
        <source>Delete Perspective</source>
        <translation>Delete Perspective</translation>
    </message>
    <message>
        <source>Perspective to delete:</source>
        <translation>Perspective to delete:</translation>
    </message>
</context>
<context>
    <name>vl::desktop::LevelFieldEditor</name>
    <message>
        <source>not set</source>
        <translation>not set</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(mixed)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::MainToolBar</name>
    <message>
        <source>Main</source>
        <translation>Main</translation>
    </message>
</context>
<context>
    <name>vl::desktop::MainWindow</name>
    <message>
        <source>Saved “%1”.</source>
        <translation>Saved “%1”.</translation>
    </message>
    <message>
        <source>%1[*] – Ivorel</source>
        <translation>%1[*] – Ivorel</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Why the project was not saved</source>
        <translation>Why the project was not saved</translation>
    </message>
    <message>
        <source>⚠ Not saved: %1</source>
        <translation>⚠ Not saved: %1</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Save Project</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Saved as %1.</translation>
    </message>
    <message>
        <source>The disk is full. %1</source>
        <translation>The disk is full. %1</translation>
    </message>
</context>
<context>
    <name>vl::desktop::NewProjectDialog</name>
    <message>
        <source>A single &amp;file</source>
        <translation>A single &amp;file</translation>
    </message>
    <message>
        <source>A f&amp;older of text files</source>
        <translation>A f&amp;older of text files</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>New Project</translation>
    </message>
    <message>
        <source>Where the project will stand</source>
        <translation>Where the project will stand</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Create</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Templates</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>Name of the project</translation>
    </message>
    <message>
        <source>What you call the work for now</source>
        <translation>What you call the work for now</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>&amp;Place:</translation>
    </message>
    <message>
        <source>Folder that the project is made in</source>
        <translation>Folder that the project is made in</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoose…</translation>
    </message>
    <message>
        <source>One file that is easy to copy and to send.</source>
        <translation>One file that is easy to copy and to send.</translation>
    </message>
    <message>
        <source>One small file a document: suits version control and sync.</source>
        <translation>One small file a document: suits version control and sync.</translation>
    </message>
    <message>
        <source>Saved as:</source>
        <translation>Saved as:</translation>
    </message>
    <message>
        <source>Place of the Project</source>
        <translation>Place of the Project</translation>
    </message>
    <message>
        <source>Give the project a name; it can be changed later.</source>
        <translation>Give the project a name; it can be changed later.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::NoticeBar</name>
    <message>
        <source>Not Now</source>
        <translation>Not Now</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Notices</name>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>What needs attention</source>
        <translation>What needs attention</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ObjectTree</name>
    <message>
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Clear the filter</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PageView</name>
    <message>
        <source>Pages of the document</source>
        <translation>Pages of the document</translation>
    </message>
    <message>
        <source>Laying out the pages…</source>
        <translation>Laying out the pages…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::Palette</name>
    <message>
        <source>Command palette</source>
        <translation>Command palette</translation>
    </message>
    <message>
        <source>Search documents and entities…</source>
        <translation>Search documents and entities…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>What was found</translation>
    </message>
    <message>
        <source>How much was found</source>
        <translation>How much was found</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>&gt; commands    # tags    @ headings    Ctrl+Enter: show and go on</source>
        <translation>&gt; commands    # tags    @ headings    Ctrl+Enter: show and go on</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PaletteHost</name>
    <message>
        <source>Go to Panel: %1</source>
        <translation>Go to Panel: %1</translation>
    </message>
    <message>
        <source>show, open</source>
        <translation>show, open</translation>
    </message>
    <message>
        <source>Not possible at the moment</source>
        <translation>Not possible at the moment</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PickDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter the list</source>
        <translation>Filter the list</translation>
    </message>
    <message>
        <source>Clear the filter</source>
        <translation>Clear the filter</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PicturesEditor</name>
    <message>
        <source>Add a picture of the project</source>
        <translation>Add a picture of the project</translation>
    </message>
    <message>
        <source>Make it the cover</source>
        <translation>Make it the cover</translation>
    </message>
    <message>
        <source>Take the picture away; it stays in the project</source>
        <translation>Take the picture away; it stays in the project</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(missing)</translation>
    </message>
    <message>
        <source>Picture without a caption</source>
        <translation>Picture without a caption</translation>
    </message>
    <message>
        <source>No picture yet.</source>
        <translation>No picture yet.</translation>
    </message>
    <message>
        <source>The first one is the cover.</source>
        <translation>The first one is the cover.</translation>
    </message>
    <message>
        <source>Add Picture</source>
        <translation>Add Picture</translation>
    </message>
    <message>
        <source>Picture of the project:</source>
        <translation>Picture of the project:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
</context>
<context>
    <name>vl::desktop::PreferencesDialog</name>
    <message>
        <source>No page has these words.</source>
        <translation>No page has these words.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Search preferences</source>
        <translation>Search preferences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;Reset Page</source>
        <translation>&amp;Reset Page</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ProjectCare</name>
    <message>
        <source>The project is backed up.</source>
        <translation>The project is backed up.</translation>
    </message>
    <message>
        <source>Show Backups</source>
        <translation>Show Backups</translation>
    </message>
    <message>
        <source>The newest backup holds the same already.</source>
        <translation>The newest backup holds the same already.</translation>
    </message>
    <message>
        <source>Back Up Project</source>
        <translation>Back Up Project</translation>
    </message>
    <message>
        <source>No backup was made: %1</source>
        <translation>No backup was made: %1</translation>
    </message>
    <message>
        <source>%1 (backup)</source>
        <translation>%1 (backup)</translation>
    </message>
    <message>
        <source>Open a Copy</source>
        <translation>Open a Copy</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>The document is restored.</source>
        <translation>The document is restored.</translation>
    </message>
    <message>
        <source>What was deleted is restored.</source>
        <translation>What was deleted is restored.</translation>
    </message>
    <message>
        <source>The project is not saved yet: it has no backups.</source>
        <translation>The project is not saved yet: it has no backups.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ProjectTools</name>
    <message>
        <source>Ivorel Sample</source>
        <translation>Ivorel Sample</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecentMenu</name>
    <message>
        <source>Not found: %1</source>
        <translation>Not found: %1</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1 (not found)</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecentlyDeletedDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>Recently Deleted</source>
        <translation>Recently Deleted</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was deleted from this project in the last %n day(s).</source>
        <translation>
            <numerusform>Nothing was deleted from this project in the last %n day.</numerusform>
            <numerusform>Nothing was deleted from this project in the last %n days.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What was deleted in the last %n day(s) and is not there again. What lies below a document comes back with it.</source>
        <translation>
            <numerusform>What was deleted in the last %n day and is not there again. What lies below a document comes back with it.</numerusform>
            <numerusform>What was deleted in the last %n days and is not there again. What lies below a document comes back with it.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recently deleted</source>
        <translation>Recently deleted</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Text of what was deleted</source>
        <translation>Text of what was deleted</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RecoveryDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>Unsaved Work</source>
        <translation>Unsaved Work</translation>
    </message>
    <message>
        <source>Ivorel was cut off before this was saved. What you restore comes into the open project as one step that you can undo; lines that go are marked “−”, lines that come back “+”.</source>
        <translation>Ivorel was cut off before this was saved. What you restore comes into the open project as one step that you can undo; lines that go are marked “−”, lines that come back “+”.</translation>
    </message>
    <message>
        <source>&amp;Discard All</source>
        <translation>&amp;Discard All</translation>
    </message>
    <message>
        <source>Decide &amp;Later</source>
        <translation>Decide &amp;Later</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Unsaved work</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>deleted</translation>
    </message>
    <message>
        <source>new</source>
        <translation>new</translation>
    </message>
    <message>
        <source>merged</source>
        <translation>merged</translation>
    </message>
    <message>
        <source>beside the newer one</source>
        <translation>beside the newer one</translation>
    </message>
    <message>
        <source>the project’s is newer</source>
        <translation>the project’s is newer</translation>
    </message>
    <message>
        <source>It was changed since in other places. Both are kept in it.</source>
        <translation>It was changed since in other places. Both are kept in it.</translation>
    </message>
    <message>
        <source>It was changed since in the same places. The unsaved work comes back beside it, as “%1 (unsaved work)”.</source>
        <translation>It was changed since in the same places. The unsaved work comes back beside it, as “%1 (unsaved work)”.</translation>
    </message>
    <message>
        <source>It was changed since. Restoring puts the unsaved work in place of that.</source>
        <translation>It was changed since. Restoring puts the unsaved work in place of that.</translation>
    </message>
    <message>
        <source>It was deleted before the program was cut off, and changed since. Restoring deletes it.</source>
        <translation>It was deleted before the program was cut off, and changed since. Restoring deletes it.</translation>
    </message>
    <message>
        <source>It was deleted. Restoring deletes it again.</source>
        <translation>It was deleted. Restoring deletes it again.</translation>
    </message>
    <message>
        <source>It is not in the project.</source>
        <translation>It is not in the project.</translation>
    </message>
    <message>
        <source>Nobody changed it since.</source>
        <translation>Nobody changed it since.</translation>
    </message>
    <message numerus="yes">
        <source>It can be brought back for %n day(s) by File › Unsaved Work….</source>
        <translation>
            <numerusform>It can be brought back for %n day by File › Unsaved Work….</numerusform>
            <numerusform>It can be brought back for %n days by File › Unsaved Work….</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vl::desktop::ReferenceFieldEditor</name>
    <message>
        <source>Go to what is named here</source>
        <translation>Go to what is named here</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entities</translation>
    </message>
</context>
<context>
    <name>vl::desktop::RestoreDocumentDialog</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>Restore This Document</source>
        <translation>Restore This Document</translation>
    </message>
    <message>
        <source>Choose a document. Restoring it is one step that you can undo; what goes is marked “−”, what comes back “+”.</source>
        <translation>Choose a document. Restoring it is one step that you can undo; what goes is marked “−”, what comes back “+”.</translation>
    </message>
    <message>
        <source>Documents in the backup</source>
        <translation>Documents in the backup</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unchanged</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>changed since</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>not there any more</translation>
    </message>
    <message>
        <source>There are no documents in this backup.</source>
        <translation>There are no documents in this backup.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::SafeKeeping</name>
    <message>
        <source>External Changes</source>
        <translation>External Changes</translation>
    </message>
    <message>
        <source>The project is not saved yet: there is nothing on disk to compare it with.</source>
        <translation>The project is not saved yet: there is nothing on disk to compare it with.</translation>
    </message>
    <message>
        <source>&amp;Compare…</source>
        <translation>&amp;Compare…</translation>
    </message>
    <message>
        <source>&amp;Keep My Version</source>
        <translation>&amp;Keep My Version</translation>
    </message>
    <message>
        <source>&amp;Load On-Disk Version</source>
        <translation>&amp;Load On-Disk Version</translation>
    </message>
    <message>
        <source>&amp;Merge and Reload</source>
        <translation>&amp;Merge and Reload</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>&amp;Check Again</source>
        <translation>&amp;Check Again</translation>
    </message>
    <message>
        <source>&amp;Reload Media</source>
        <translation>&amp;Reload Media</translation>
    </message>
    <message>
        <source>More than half of the project is gone from the disk.</source>
        <translation>More than half of the project is gone from the disk.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) would be removed here as well. The project is backed up first.</source>
        <translation>
            <numerusform>%n file would be removed here as well. The project is backed up first.</numerusform>
            <numerusform>%n files would be removed here as well. The project is backed up first.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>&amp;Compare and Merge…</source>
        <translation>&amp;Compare and Merge…</translation>
    </message>
    <message>
        <source>“%1” is open to be read only. What you change here is saved nowhere until you save it under another name.</source>
        <translation>“%1” is open to be read only. What you change here is saved nowhere until you save it under another name.</translation>
    </message>
    <message>
        <source>“%1” is missing in the folder of this project: its calendar, plot threads, goals, pins and saved searches stand as in a new one. A backup may still have them.</source>
        <translation>“%1” is missing in the folder of this project: its calendar, plot threads, goals, pins and saved searches stand as in a new one. A backup may still have them.</translation>
    </message>
    <message>
        <source>Show &amp;Backups…</source>
        <translation>Show &amp;Backups…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ShortcutsPage</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>AI</source>
        <translation>AI</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>In panels</source>
        <translation>In panels</translation>
    </message>
    <message>
        <source>&amp;No Shortcut</source>
        <translation>&amp;No Shortcut</translation>
    </message>
    <message>
        <source>&amp;Built-in Shortcut</source>
        <translation>&amp;Built-in Shortcut</translation>
    </message>
    <message>
        <source>&amp;Use It Here</source>
        <translation>&amp;Use It Here</translation>
    </message>
    <message>
        <source>Find an action or keys</source>
        <translation>Find an action or keys</translation>
    </message>
    <message>
        <source>Actions and their shortcuts</source>
        <translation>Actions and their shortcuts</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>New shortcut</source>
        <translation>New shortcut</translation>
    </message>
    <message>
        <source>Select an action to change its shortcut.</source>
        <translation>Select an action to change its shortcut.</translation>
    </message>
    <message>
        <source>Press the new shortcut for “%1”:</source>
        <translation>Press the new shortcut for “%1”:</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” now.</source>
        <translation>“%1” belongs to “%2” now.</translation>
    </message>
    <message>
        <source>“%1” writes, moves or copies in texts and cannot be a shortcut.</source>
        <translation>“%1” writes, moves or copies in texts and cannot be a shortcut.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::StartUp</name>
    <message>
        <source>Settings are not kept: %1 cannot be written to. What you set lasts until Ivorel is closed.</source>
        <translation>Settings are not kept: %1 cannot be written to. What you set lasts until Ivorel is closed.</translation>
    </message>
    <message>
        <source>The settings file was damaged. What could be read of it is in use; it is kept as %1.</source>
        <translation>The settings file was damaged. What could be read of it is in use; it is kept as %1.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TargetFieldEditor</name>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Words written against the target</source>
        <translation>Words written against the target</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(mixed)</translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation>%1 of %2 words</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TimedValuesEditor</name>
    <message>
        <source>Columns</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Add a value from a date on</source>
        <translation>Add a value from a date on</translation>
    </message>
    <message>
        <source>Remove the selected values</source>
        <translation>Remove the selected values</translation>
    </message>
    <message>
        <source>Values that hold from a date of the story on.</source>
        <translation>Values that hold from a date of the story on.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::TokensFieldEditor</name>
    <message>
        <source>Remove “%1”</source>
        <translation>Remove “%1”</translation>
    </message>
    <message>
        <source>%1: press to remove.</source>
        <translation>%1: press to remove.</translation>
    </message>
    <message>
        <source>Add to “%1”</source>
        <translation>Add to “%1”</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(mixed)</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Add…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::ToolBarsPage</name>
    <message>
        <source>&amp;Entries of the tool bar “Main”:</source>
        <translation>&amp;Entries of the tool bar “Main”:</translation>
    </message>
    <message>
        <source>Entries of the tool bar “Main”</source>
        <translation>Entries of the tool bar “Main”</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdateCheck</name>
    <message>
        <source>Check for Updates</source>
        <translation>Check for Updates</translation>
    </message>
    <message>
        <source>Could not reach the update service: %1</source>
        <translation>Could not reach the update service: %1</translation>
    </message>
    <message>
        <source>The update information could not be read.</source>
        <translation>The update information could not be read.</translation>
    </message>
    <message>
        <source>You're up to date — Ivorel %1 is the newest version.</source>
        <translation>You're up to date — Ivorel %1 is the newest version.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>The download failed: %1</source>
        <translation>The download failed: %1</translation>
    </message>
    <message>
        <source>The downloaded installer failed its integrity check and was discarded. Nothing was installed.</source>
        <translation>The downloaded installer failed its integrity check and was discarded. Nothing was installed.</translation>
    </message>
    <message>
        <source>The installer could not be saved to disk.</source>
        <translation>The installer could not be saved to disk.</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>The installer could not be started.</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdateStatus</name>
    <message>
        <source>Progress of the download</source>
        <translation>Progress of the download</translation>
    </message>
    <message>
        <source>Cancel the download</source>
        <translation>Cancel the download</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Checking for updates…</translation>
    </message>
    <message>
        <source>Downloading Ivorel %1…</source>
        <translation>Downloading Ivorel %1…</translation>
    </message>
    <message>
        <source>Update available: %1 — Install…</source>
        <translation>Update available: %1 — Install…</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UpdatesPage</name>
    <message>
        <source>New versions</source>
        <translation>New versions</translation>
    </message>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Look for a new version once a day</translation>
    </message>
    <message>
        <source>Last looked for on %1.</source>
        <translation>Last looked for on %1.</translation>
    </message>
    <message>
        <source>Not looked for automatically yet.</source>
        <translation>Not looked for automatically yet.</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>&amp;Check Now</translation>
    </message>
</context>
<context>
    <name>vl::desktop::UrlFieldEditor</name>
    <message>
        <source>Open the address in the browser</source>
        <translation>Open the address in the browser</translation>
    </message>
</context>
<context>
    <name>vl::desktop::WelcomeDialog</name>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Recent projects</translation>
    </message>
    <message>
        <source>Projects that you open stand here the next time.</source>
        <translation>Projects that you open stand here the next time.</translation>
    </message>
    <message>
        <source>You find this again under Help › Welcome.</source>
        <translation>You find this again under Help › Welcome.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Welcome to Ivorel</source>
        <translation>Welcome to Ivorel</translation>
    </message>
    <message>
        <source>A desk for your manuscript and the world it plays in. Everything stays on your own machine, as plain text.</source>
        <translation>A desk for your manuscript and the world it plays in. Everything stays on your own machine, as plain text.</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>New Project</translation>
    </message>
    <message>
        <source>Blank, or prepared for a novel, a series, a screenplay or a campaign.</source>
        <translation>Blank, or prepared for a novel, a series, a screenplay or a campaign.</translation>
    </message>
    <message>
        <source>Open a Project</source>
        <translation>Open a Project</translation>
    </message>
    <message>
        <source>A “.vellum” file.</source>
        <translation>A “.vellum” file.</translation>
    </message>
    <message>
        <source>Open a Project Folder</source>
        <translation>Open a Project Folder</translation>
    </message>
    <message>
        <source>A folder of text files.</source>
        <translation>A folder of text files.</translation>
    </message>
    <message>
        <source>Look at the Sample</source>
        <translation>Look at the Sample</translation>
    </message>
    <message>
        <source>A small world to try everything on; you work on a copy of your own.</source>
        <translation>A small world to try everything on; you work on a copy of your own.</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>It is not installed.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>A manuscript that you wrote elsewhere.</source>
        <translation>A manuscript that you wrote elsewhere.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <translation>Not found: %1</translation>
    </message>
</context>
<context>
    <name>vl::desktop::WindowMenus</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;AI</source>
        <translation>&amp;AI</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Import</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Export</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Recent Projects</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Theme</translation>
    </message>
    <message>
        <source>Interface &amp;Language</source>
        <translation>Interface &amp;Language</translation>
    </message>
    <message>
        <source>Appl&amp;y Perspective</source>
        <translation>Appl&amp;y Perspective</translation>
    </message>
</context>
</TS>
