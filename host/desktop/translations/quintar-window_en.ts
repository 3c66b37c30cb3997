<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ChangeWarnings</name>
    <message numerus="yes">
        <source>%n document(s) have no bookmarks: the panel will be empty.</source>
        <translation>
            <numerusform>%n document has no bookmarks: the panel will be empty.</numerusform>
            <numerusform>%n documents have no bookmarks: the panel will be empty.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) have no title to show.</source>
        <translation>
            <numerusform>%n document has no title to show.</numerusform>
            <numerusform>%n documents have no title to show.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %n page(s); it cannot open there.</source>
        <translation>
            <numerusform>The shortest document has %n page; it cannot open there.</numerusform>
            <numerusform>The shortest document has %n pages; it cannot open there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%n document is signed and stays as it is, unless you say otherwise.</numerusform>
            <numerusform>%n documents are signed and stay as they are, unless you say otherwise.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %n document(s) that want one.</source>
        <translation>
            <numerusform>The password does not open the %n document that wants one.</numerusform>
            <numerusform>The password opens none of the %n documents that want one.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %n document(s).</source>
        <translation>
            <numerusform>The password opens %n document.</numerusform>
            <numerusform>The password opens %n documents.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) want another one.</source>
        <translation>
            <numerusform>%n document wants another one.</numerusform>
            <numerusform>%n documents want another one.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message numerus="yes">
        <source>all %n document(s)</source>
        <translation>
            <numerusform>the %n document</numerusform>
            <numerusform>all %n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %n shown</source>
        <translation>
            <numerusform>the %n shown</numerusform>
            <numerusform>all %n shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %n selected</source>
        <translation>
            <numerusform>the %n selected</numerusform>
            <numerusform>the %n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message numerus="yes">
        <source>Give %n document(s) back as they were?</source>
        <translation>
            <numerusform>Give %n document back as it was?</numerusform>
            <numerusform>Give %n documents back as they were?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message numerus="yes">
        <source>&amp;Redo Removing %n Document(s)</source>
        <translation>
            <numerusform>&amp;Redo Removing %n Document</numerusform>
            <numerusform>&amp;Redo Removing %n Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %n Document(s)</source>
        <translation>
            <numerusform>&amp;Undo Removing %n Document</numerusform>
            <numerusform>&amp;Undo Removing %n Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %n Document(s)</source>
        <translation>
            <numerusform>&amp;Redo Adding %n Document</numerusform>
            <numerusform>&amp;Redo Adding %n Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %n Document(s)</source>
        <translation>
            <numerusform>&amp;Undo Adding %n Document</numerusform>
            <numerusform>&amp;Undo Adding %n Documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::MainWindow</name>
    <message numerus="yes">
        <source>%n document(s) - Quintar</source>
        <translation>
            <numerusform>%n document - Quintar</numerusform>
            <numerusform>%n documents - Quintar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message numerus="yes">
        <source>Show %n Fa&amp;iled</source>
        <translation>
            <numerusform>Show %n Fa&amp;iled</numerusform>
            <numerusform>Show %n Fa&amp;iled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading… %n document(s) so far</source>
        <translation>
            <numerusform>Reading… %n document so far</numerusform>
            <numerusform>Reading… %n documents so far</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n will change</source>
        <translation>
            <numerusform>%n will change</numerusform>
            <numerusform>%n will change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n open so already</source>
        <translation>
            <numerusform>%n opens so already</numerusform>
            <numerusform>%n open so already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cannot be changed</source>
        <translation>
            <numerusform>%n cannot be changed</numerusform>
            <numerusform>%n cannot be changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n as they were</source>
        <translation>
            <numerusform>%n as it was</numerusform>
            <numerusform>%n as they were</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not done</source>
        <translation>
            <numerusform>%n not done</numerusform>
            <numerusform>%n not done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n second(s) left</source>
        <translation>
            <numerusform>about %n second left</numerusform>
            <numerusform>about %n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>about %n minute left</numerusform>
            <numerusform>about %n minutes left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n changed</numerusform>
            <numerusform>%n changed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message numerus="yes">
        <source>%n document(s) will be changed in place.</source>
        <translation>
            <numerusform>%n document will be changed in place.</numerusform>
            <numerusform>%n documents will be changed in place.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) will be written to %1.</source>
        <translation>
            <numerusform>%n result will be written to %1.</numerusform>
            <numerusform>%n results will be written to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>%n result will be written beside the document, with “-%1” added to its name.</numerusform>
            <numerusform>%n results will be written beside the documents, with “-%1” added to their names.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) there will be replaced.</source>
        <translation>
            <numerusform>%n file there will be replaced.</numerusform>
            <numerusform>%n files there will be replaced.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%n document cannot be changed and stays as it is.</numerusform>
            <numerusform>%n documents cannot be changed and stay as they are.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message numerus="yes">
        <source>%n document(s) were in the list already.</source>
        <translation>
            <numerusform>%n document was in the list already.</numerusform>
            <numerusform>%n documents were in the list already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%n document is as it was before the run.</numerusform>
            <numerusform>%n documents are as they were before the run.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%n document was left alone, since it is no longer as the run left it.</numerusform>
            <numerusform>%n documents were left alone, since they are no longer as the run left them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %n document(s) are as they were before the run.</source>
        <translation>
            <numerusform>Undoing was stopped: %n document is as it was before the run.</numerusform>
            <numerusform>Undoing was stopped: %n documents are as they were before the run.</numerusform>
        </translation>
    </message>
</context>
</TS>
