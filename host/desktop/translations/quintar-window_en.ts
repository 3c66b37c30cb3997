<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ChangeWarnings</name>
    <message numerus="yes">
        <source>%Ln document(s) have no bookmarks: the panel will be empty.</source>
        <translation>
            <numerusform>%Ln document has no bookmarks: the panel will be empty.</numerusform>
            <numerusform>%Ln documents have no bookmarks: the panel will be empty.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) have no title to show.</source>
        <translation>
            <numerusform>%Ln document has no title to show.</numerusform>
            <numerusform>%Ln documents have no title to show.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %Ln page(s); it cannot open there.</source>
        <translation>
            <numerusform>The shortest document has %Ln page; it cannot open there.</numerusform>
            <numerusform>The shortest document has %Ln pages; it cannot open there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%Ln document is signed and stays as it is, unless you say otherwise.</numerusform>
            <numerusform>%Ln documents are signed and stay as they are, unless you say otherwise.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %Ln document(s) that want one.</source>
        <translation>
            <numerusform>The password does not open the %Ln document that wants one.</numerusform>
            <numerusform>The password opens none of the %Ln documents that want one.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %Ln document(s).</source>
        <translation>
            <numerusform>The password opens %Ln document.</numerusform>
            <numerusform>The password opens %Ln documents.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) want another one.</source>
        <translation>
            <numerusform>%Ln document wants another one.</numerusform>
            <numerusform>%Ln documents want another one.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message numerus="yes">
        <source>all %Ln document(s)</source>
        <translation>
            <numerusform>the %Ln document</numerusform>
            <numerusform>all %Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %Ln shown</source>
        <translation>
            <numerusform>the %Ln shown</numerusform>
            <numerusform>all %Ln shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %Ln selected</source>
        <translation>
            <numerusform>the %Ln selected</numerusform>
            <numerusform>the %Ln selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message numerus="yes">
        <source>Give %Ln document(s) back as they were?</source>
        <translation>
            <numerusform>Give %Ln document back as it was?</numerusform>
            <numerusform>Give %Ln documents back as they were?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message numerus="yes">
        <source>&amp;Redo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Redo Removing %Ln Document</numerusform>
            <numerusform>&amp;Redo Removing %Ln Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Undo Removing %Ln Document</numerusform>
            <numerusform>&amp;Undo Removing %Ln Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Redo Adding %Ln Document</numerusform>
            <numerusform>&amp;Redo Adding %Ln Documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Undo Adding %Ln Document</numerusform>
            <numerusform>&amp;Undo Adding %Ln Documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message numerus="yes">
        <source>%Ln document(s)</source>
        <translation>
            <numerusform>%Ln document</numerusform>
            <numerusform>%Ln documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::MainWindow</name>
    <message numerus="yes">
        <source>%Ln document(s) - Quintar</source>
        <translation>
            <numerusform>%Ln document - Quintar</numerusform>
            <numerusform>%Ln documents - Quintar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message numerus="yes">
        <source>Show %Ln Fa&amp;iled</source>
        <translation>
            <numerusform>Show %Ln Fa&amp;iled</numerusform>
            <numerusform>Show %Ln Fa&amp;iled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading… %Ln document(s) so far</source>
        <translation>
            <numerusform>Reading… %Ln document so far</numerusform>
            <numerusform>Reading… %Ln documents so far</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln will change</source>
        <translation>
            <numerusform>%Ln will change</numerusform>
            <numerusform>%Ln will change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln open so already</source>
        <translation>
            <numerusform>%Ln opens so already</numerusform>
            <numerusform>%Ln open so already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be changed</source>
        <translation>
            <numerusform>%Ln cannot be changed</numerusform>
            <numerusform>%Ln cannot be changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln changed</numerusform>
            <numerusform>%Ln changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln as they were</source>
        <translation>
            <numerusform>%Ln as it was</numerusform>
            <numerusform>%Ln as they were</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not done</source>
        <translation>
            <numerusform>%Ln not done</numerusform>
            <numerusform>%Ln not done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>about %Ln second left</numerusform>
            <numerusform>about %Ln seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>about %Ln minute left</numerusform>
            <numerusform>about %Ln minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln written</numerusform>
            <numerusform>%Ln written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln copied as they were</source>
        <translation>
            <numerusform>%Ln copied as it was</numerusform>
            <numerusform>%Ln copied as they were</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln changed</numerusform>
            <numerusform>%Ln changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln written</numerusform>
            <numerusform>%Ln written</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message numerus="yes">
        <source>%Ln document(s) will be changed in place.</source>
        <translation>
            <numerusform>%Ln document will be changed in place.</numerusform>
            <numerusform>%Ln documents will be changed in place.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written to %1.</source>
        <translation>
            <numerusform>%Ln result will be written to %1.</numerusform>
            <numerusform>%Ln results will be written to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>%Ln result will be written beside the document, with “-%1” added to its name.</numerusform>
            <numerusform>%Ln results will be written beside the documents, with “-%1” added to their names.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) there will be replaced.</source>
        <translation>
            <numerusform>%Ln file there will be replaced.</numerusform>
            <numerusform>%Ln files there will be replaced.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%Ln document cannot be changed and stays as it is.</numerusform>
            <numerusform>%Ln documents cannot be changed and stay as they are.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message numerus="yes">
        <source>%Ln document(s) were in the list already.</source>
        <translation>
            <numerusform>%Ln document was in the list already.</numerusform>
            <numerusform>%Ln documents were in the list already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%Ln document is as it was before the run.</numerusform>
            <numerusform>%Ln documents are as they were before the run.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%Ln document was left alone, since it is no longer as the run left it.</numerusform>
            <numerusform>%Ln documents were left alone, since they are no longer as the run left them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>Undoing was stopped: %Ln document is as it was before the run.</numerusform>
            <numerusform>Undoing was stopped: %Ln documents are as they were before the run.</numerusform>
        </translation>
    </message>
</context>
</TS>
