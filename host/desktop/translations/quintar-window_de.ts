<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionDialog</name>
    <message>
        <source>Settings of the action</source>
        <translation>Einstellungen der Aktion</translation>
    </message>
</context>
<context>
    <name>ChangeDraft</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
</context>
<context>
    <name>ChangeWarnings</name>
    <message numerus="yes">
        <source>%Ln document(s) have no bookmarks: the panel will be empty.</source>
        <translation>
            <numerusform>%Ln Dokument hat keine Lesezeichen: Die Seitenleiste wird leer sein.</numerusform>
            <numerusform>%Ln Dokumente haben keine Lesezeichen: Die Seitenleiste wird leer sein.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) have no title to show.</source>
        <translation>
            <numerusform>%Ln Dokument hat keinen Titel, der gezeigt werden könnte.</numerusform>
            <numerusform>%Ln Dokumente haben keinen Titel, der gezeigt werden könnte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %Ln page(s); it cannot open there.</source>
        <translation>
            <numerusform>Das kürzeste Dokument hat %Ln Seite; es kann sich dort nicht öffnen.</numerusform>
            <numerusform>Das kürzeste Dokument hat %Ln Seiten; es kann sich dort nicht öffnen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%Ln Dokument ist signiert und bleibt, wie es ist, sofern Sie nichts anderes sagen.</numerusform>
            <numerusform>%Ln Dokumente sind signiert und bleiben, wie sie sind, sofern Sie nichts anderes sagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Full screen: many viewers ask first, and browsers ignore it.</source>
        <translation>Vollbild: Viele Betrachter fragen zuerst, Browser beachten es nicht.</translation>
    </message>
    <message>
        <source>Browsers ignore what is said about windows and bars.</source>
        <translation>Browser beachten nicht, was über Fenster und Leisten gesagt wird.</translation>
    </message>
    <message>
        <source>Without the menu bar, readers need the keyboard.</source>
        <translation>Ohne die Menüleiste sind Leser auf die Tastatur angewiesen.</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The name of the file. The sign before it says what a run would do or did.</source>
        <translation>Der Name der Datei. Das Zeichen davor sagt, was ein Durchlauf tun würde oder getan hat.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Where the document lies.</source>
        <translation>Wo das Dokument liegt.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The document&apos;s own title, from its properties.</source>
        <translation>Der Titel des Dokuments selbst, aus seinen Eigenschaften.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>How many pages the document has.</source>
        <translation>Wie viele Seiten das Dokument hat.</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>How many bookmarks the document has.</source>
        <translation>Wie viele Lesezeichen das Dokument hat.</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens.</source>
        <translation>Was beim Öffnen des Dokuments neben der Seite steht.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>How the pages are set out.</source>
        <translation>Wie die Seiten angeordnet sind.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The page that is shown first.</source>
        <translation>Die Seite, die zuerst gezeigt wird.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown.</source>
        <translation>Wie groß die erste Seite gezeigt wird.</translation>
    </message>
    <message>
        <source>Title Bar</source>
        <translation>Titelleiste</translation>
    </message>
    <message>
        <source>Whether the title bar of the viewer says the title or the name of the file.</source>
        <translation>Ob die Titelleiste des Betrachters den Titel nennt oder den Namen der Datei.</translation>
    </message>
    <message>
        <source>Window Options</source>
        <translation>Fensteroptionen</translation>
    </message>
    <message>
        <source>What else the document asks for: hidden bars, the size and place of the window, printing.</source>
        <translation>Was das Dokument sonst noch verlangt: ausgeblendete Leisten, Größe und Ort des Fensters, Drucken.</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signiert</translation>
    </message>
    <message>
        <source>Viewers report any change of a signed document.</source>
        <translation>Betrachter melden jede Änderung an einem signierten Dokument.</translation>
    </message>
    <message>
        <source>Certified</source>
        <translation>Zertifiziert</translation>
    </message>
    <message>
        <source>A certified document says what may be done to it.</source>
        <translation>Ein zertifiziertes Dokument sagt, was mit ihm geschehen darf.</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>An encrypted document may need a password to be read or changed.</source>
        <translation>Ein verschlüsseltes Dokument kann zum Lesen oder Ändern ein Passwort verlangen.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>What a run would do to the document, or did, and why not.</source>
        <translation>Was ein Durchlauf mit dem Dokument tun würde oder getan hat, und warum nicht.</translation>
    </message>
</context>
<context>
    <name>Destination</name>
    <message>
        <source>Choose the folder for the results.</source>
        <translation>Wählen Sie den Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Say what is added to the names.</source>
        <translation>Geben Sie an, was an die Namen angehängt wird.</translation>
    </message>
    <message>
        <source>What is added to the names cannot hold a slash.</source>
        <translation>Was an die Namen angehängt wird, darf keinen Schrägstrich enthalten.</translation>
    </message>
    <message>
        <source>in place</source>
        <translation>in den Dokumenten selbst</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>nach %1</translation>
    </message>
    <message>
        <source>beside them, as name-%1.pdf</source>
        <translation>daneben, als Name-%1.pdf</translation>
    </message>
    <message>
        <source>The folder has to begin with a slash or with ~/.</source>
        <translation>Der Ordner muss mit einem Schrägstrich oder mit ~/ beginnen.</translation>
    </message>
    <message>
        <source>Leave out the hyphen and .pdf: they are added anyway.</source>
        <translation>Bindestrich und .pdf weglassen: Sie werden ohnehin ergänzt.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>PDF-Dokumente (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
</context>
<context>
    <name>DocumentFilter</name>
    <message>
        <source>All documents</source>
        <translation>Alle Dokumente</translation>
    </message>
    <message>
        <source>Do not show their title</source>
        <translation>Zeigen ihren Titel nicht</translation>
    </message>
    <message>
        <source>Have no title</source>
        <translation>Haben keinen Titel</translation>
    </message>
    <message>
        <source>Have bookmarks but do not show them</source>
        <translation>Haben Lesezeichen, zeigen sie aber nicht</translation>
    </message>
    <message>
        <source>Have no bookmarks</source>
        <translation>Haben keine Lesezeichen</translation>
    </message>
    <message>
        <source>Open at a page of their own</source>
        <translation>Öffnen sich auf einer eigenen Seite</translation>
    </message>
    <message>
        <source>Will change</source>
        <translation>Werden geändert</translation>
    </message>
    <message>
        <source>Failed or cannot be changed</source>
        <translation>Fehlgeschlagen oder nicht änderbar</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signiert</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>Have a title but do not show it</source>
        <translation>Haben einen Titel, zeigen ihn aber nicht</translation>
    </message>
    <message>
        <source>Failed in the run</source>
        <translation>Im Durchlauf fehlgeschlagen</translation>
    </message>
    <message>
        <source>Were changed or written</source>
        <translation>Wurden geändert oder geschrieben</translation>
    </message>
</context>
<context>
    <name>EventReader</name>
    <message>
        <source>the program and the window are of different versions</source>
        <translation>Programm und Fenster haben verschiedene Versionen</translation>
    </message>
    <message>
        <source>the program said something that is not understood</source>
        <translation>das Programm hat etwas gesagt, das nicht zu verstehen ist</translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %Ln document(s) that want one.</source>
        <translation>
            <numerusform>Das Passwort öffnet das %Ln Dokument nicht, das eines verlangt.</numerusform>
            <numerusform>Das Passwort öffnet keines der %Ln Dokumente, die eines verlangen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %Ln document(s).</source>
        <translation>
            <numerusform>Das Passwort öffnet %Ln Dokument.</numerusform>
            <numerusform>Das Passwort öffnet %Ln Dokumente.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) want another one.</source>
        <translation>
            <numerusform>%Ln Dokument verlangt ein anderes.</numerusform>
            <numerusform>%Ln Dokumente verlangen ein anderes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The preset cannot be kept: %1</source>
        <translation>Die Vorlage kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The preset cannot be removed: %1</source>
        <translation>Die Vorlage kann nicht entfernt werden: %1</translation>
    </message>
</context>
<context>
    <name>ReasonTexts</name>
    <message>
        <source>Signed: viewers would report the change.</source>
        <translation>Signiert: Betrachter würden die Änderung melden.</translation>
    </message>
    <message>
        <source>Certified: any change breaks the certification.</source>
        <translation>Zertifiziert: Jede Änderung bricht die Zertifizierung.</translation>
    </message>
    <message>
        <source>A password is needed to open it.</source>
        <translation>Zum Öffnen ist ein Passwort nötig.</translation>
    </message>
    <message>
        <source>Its owner does not allow changes without the owner&apos;s password.</source>
        <translation>Der Eigentümer erlaubt Änderungen nur mit seinem Passwort.</translation>
    </message>
    <message>
        <source>It is encrypted in a way that cannot be read here.</source>
        <translation>Es ist auf eine Weise verschlüsselt, die hier nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>Not a PDF document.</source>
        <translation>Kein PDF-Dokument.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Too damaged to be read.</source>
        <translation>Zu beschädigt, um gelesen zu werden.</translation>
    </message>
    <message>
        <source>Damaged, so it is in doubt what it holds; nothing is changed.</source>
        <translation>Beschädigt: Was es enthält, ist zweifelhaft; es wird nichts geändert.</translation>
    </message>
    <message>
        <source>Damaged, so nothing can be added to it.</source>
        <translation>Beschädigt: Es kann nichts angehängt werden.</translation>
    </message>
    <message>
        <source>Too complex to be read.</source>
        <translation>Zu verwickelt, um gelesen zu werden.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>You may not read or change it here.</source>
        <translation>Sie dürfen es hier nicht lesen oder ändern.</translation>
    </message>
    <message>
        <source>Not a file that can be read.</source>
        <translation>Keine Datei, die gelesen werden kann.</translation>
    </message>
    <message>
        <source>The disk could not be read.</source>
        <translation>Der Datenträger konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The result could not be written.</source>
        <translation>Das Ergebnis konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile.</source>
        <translation>Ein anderes Programm hat es inzwischen geändert.</translation>
    </message>
    <message>
        <source>It has been changed since the run, so it stays.</source>
        <translation>Es wurde seit dem Durchlauf geändert und bleibt deshalb.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>It lies where nothing may be written.</source>
        <translation>Es liegt dort, wo nichts geschrieben werden darf.</translation>
    </message>
    <message>
        <source>It took too long and was given up.</source>
        <translation>Es dauerte zu lange und wurde aufgegeben.</translation>
    </message>
    <message>
        <source>It needs too much memory and was given up.</source>
        <translation>Es braucht zu viel Speicher und wurde aufgegeben.</translation>
    </message>
    <message>
        <source>Reading it crashed the reader; it is as it was.</source>
        <translation>Beim Lesen ist das lesende Programm abgestürzt; das Dokument ist, wie es war.</translation>
    </message>
    <message>
        <source>&amp;Give Password…</source>
        <translation>&amp;Passwort eingeben…</translation>
    </message>
    <message>
        <source>Append A&amp;ll the Same</source>
        <translation>Trotzde&amp;m anhängen</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Neu einle&amp;sen</translation>
    </message>
    <message>
        <source>Show in Fo&amp;lder</source>
        <translation>I&amp;m Ordner anzeigen</translation>
    </message>
    <message>
        <source>signed</source>
        <translation>signiert</translation>
    </message>
    <message>
        <source>certified</source>
        <translation>zertifiziert</translation>
    </message>
    <message>
        <source>password needed</source>
        <translation>mit Passwort</translation>
    </message>
    <message>
        <source>encrypted</source>
        <translation>verschlüsselt</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>out of reach</source>
        <translation>nicht erreichbar</translation>
    </message>
    <message>
        <source>unsafe to read</source>
        <translation>nicht sicher lesbar</translation>
    </message>
    <message>
        <source>Its properties are damaged, so its title cannot be set.</source>
        <translation>Seine Eigenschaften sind beschädigt; der Titel kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>It opens with an action that cannot be taken over.</source>
        <translation>Es öffnet sich mit einer Aktion, die nicht übernommen werden kann.</translation>
    </message>
    <message>
        <source>It is larger than a limit allows.</source>
        <translation>Es ist größer, als eine Grenze erlaubt.</translation>
    </message>
    <message>
        <source>Another program keeps it locked.</source>
        <translation>Ein anderes Programm hält es gesperrt.</translation>
    </message>
    <message>
        <source>It tried to do what no document needs, and was shut out.</source>
        <translation>Es versuchte, was kein Dokument braucht, und wurde ausgesperrt.</translation>
    </message>
    <message>
        <source>The computer is too busy: no worker could be started.</source>
        <translation>Der Rechner ist zu beschäftigt: Kein Hilfsprozess konnte gestartet werden.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>It cannot be written anew without loss.</source>
        <translation>Es kann nicht ohne Verlust neu geschrieben werden.</translation>
    </message>
    <message>
        <source>It has no page of this number.</source>
        <translation>Es hat keine Seite mit dieser Nummer.</translation>
    </message>
    <message>
        <source>The change was refused while it was made; it is as it was.</source>
        <translation>Die Änderung wurde abgewiesen; es ist, wie es war.</translation>
    </message>
    <message>
        <source>It was not changed in place, so there is nothing to undo.</source>
        <translation>Es wurde nicht an Ort und Stelle geändert, also ist nichts zurückzunehmen.</translation>
    </message>
    <message>
        <source>The report does not tell what stood there before, so it stays.</source>
        <translation>Der Bericht sagt nicht, was vorher dort stand, also bleibt es.</translation>
    </message>
    <message>
        <source>The report says what no run can have done, so it stays.</source>
        <translation>Der Bericht sagt, was kein Lauf getan haben kann, also bleibt es.</translation>
    </message>
    <message>
        <source>The report tells of no change of it, so it stays.</source>
        <translation>Der Bericht sagt von keiner Änderung daran, also bleibt es.</translation>
    </message>
    <message>
        <source>A mistake of this program. Please report it.</source>
        <translation>Ein Fehler dieses Programms. Bitte melden Sie ihn.</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>seither geändert</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>Datenträger voll</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>will change</source>
        <translation>wird geändert</translation>
    </message>
    <message>
        <source>opens so already</source>
        <translation>öffnet sich schon so</translation>
    </message>
    <message>
        <source>cannot be changed</source>
        <translation>nicht änderbar</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>as it was</source>
        <translation>wie es war</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>not done</source>
        <translation>nicht erledigt</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>left alone</source>
        <translation>unberührt gelassen</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, became %2</source>
        <translation>%1, wurde zu %2</translation>
    </message>
    <message>
        <source>%1, will be %2</source>
        <translation>%1, wird zu %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>; </translation>
    </message>
    <message>
        <source>result written</source>
        <translation>Ergebnis geschrieben</translation>
    </message>
    <message>
        <source>copied as it was</source>
        <translation>unverändert kopiert</translation>
    </message>
    <message>
        <source>%1, in the result %2</source>
        <translation>%1, im Ergebnis %2</translation>
    </message>
</context>
<context>
    <name>RunOrder</name>
    <message>
        <source>Write to</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>The documents themselves lie in this folder. Choose another one, or write to the documents themselves.</source>
        <translation>Die Dokumente selbst liegen in diesem Ordner. Wählen Sie einen anderen, oder schreiben Sie in die Dokumente selbst.</translation>
    </message>
</context>
<context>
    <name>SceneDrawing</name>
    <message>
        <source>no bookmarks</source>
        <translation>keine Lesezeichen</translation>
    </message>
</context>
<context>
    <name>SelectionSummary</name>
    <message>
        <source>others</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>jetzt %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>different: %1</source>
        <translation>verschieden: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>A run is being undone. Stop undoing it?</source>
        <translation>Ein Durchlauf wird rückgängig gemacht. Abbrechen?</translation>
    </message>
    <message>
        <source>A run is under way. Stop it?</source>
        <translation>Ein Durchlauf ist im Gange. Abbrechen?</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as the run left them, and the run can be undone later.</source>
        <translation>Begonnene Dokumente werden zu Ende bearbeitet; die anderen bleiben, wie der Durchlauf sie hinterließ, und er kann später rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as they are.</source>
        <translation>Begonnene Dokumente werden zu Ende bearbeitet; die anderen bleiben, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>Panel</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens: nothing, its bookmarks, small pictures of its pages, its layers or its attachments. Full screen shows the page alone, as in a presentation. Bookmarks are widely followed, full screen only after the viewer has asked.</source>
        <translation>Was beim Öffnen des Dokuments neben der Seite steht: nichts, die Lesezeichen, kleine Bilder der Seiten, die Ebenen oder die Anhänge. Vollbild zeigt die Seite allein, wie in einer Präsentation. Lesezeichen werden weithin befolgt, Vollbild erst, nachdem der Betrachter gefragt hat.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>How the pages are set out. In columns they follow each other while scrolling; single pages and pairs are turned. Simple viewers know fewer layouts or keep the one used last.</source>
        <translation>Wie die Seiten angeordnet sind. Bei fortlaufenden Seiten folgen sie beim Rollen aufeinander; einzelne Seiten und Seitenpaare werden geblättert. Einfache Betrachter kennen weniger Layouts oder behalten das zuletzt benutzte.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The page that is shown first. It counts the sheets from the beginning, whatever numbers are printed on them. Widely followed, but many viewers return to where the reader stopped last.</source>
        <translation>Die Seite, die zuerst gezeigt wird. Gezählt werden die Blätter vom Anfang an, gleich welche Zahlen darauf gedruckt sind. Wird weithin befolgt, doch viele Betrachter kehren dahin zurück, wo zuletzt gelesen wurde.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown. Fitting the page or its width and percentages are widely followed; fitting the height or what is visible is rarer.</source>
        <translation>Wie groß die erste Seite gezeigt wird. Ganze Seite, Seitenbreite und Prozentwerte werden weithin befolgt; Seitenhöhe und sichtbarer Inhalt seltener.</translation>
    </message>
    <message>
        <source>Tool bars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Whether the viewer hides its tool bars. Viewers in web browsers ignore this.</source>
        <translation>Ob der Betrachter seine Werkzeugleisten ausblendet. Betrachter in Webbrowsern beachten das nicht.</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Whether the viewer hides its menu bar. Readers then need the keyboard. Viewers in web browsers ignore this.</source>
        <translation>Ob der Betrachter seine Menüleiste ausblendet. Leser sind dann auf die Tastatur angewiesen. Betrachter in Webbrowsern beachten das nicht.</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Steuerelemente</translation>
    </message>
    <message>
        <source>Whether the viewer hides scroll bars and other controls. Viewers in web browsers ignore this.</source>
        <translation>Ob der Betrachter Bildlaufleisten und andere Steuerelemente ausblendet. Betrachter in Webbrowsern beachten das nicht.</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Fenstergröße</translation>
    </message>
    <message>
        <source>Whether the window takes the size of the first page. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Ob das Fenster die Größe der ersten Seite annimmt. Betrachter in Webbrowsern und solche mit Reitern beachten das nicht.</translation>
    </message>
    <message>
        <source>Window place</source>
        <translation>Fensterort</translation>
    </message>
    <message>
        <source>Whether the window stands in the middle of the screen. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Ob das Fenster in der Mitte des Bildschirms steht. Betrachter in Webbrowsern und solche mit Reitern beachten das nicht.</translation>
    </message>
    <message>
        <source>Title bar</source>
        <translation>Titelleiste</translation>
    </message>
    <message>
        <source>What the title bar of the viewer says: the name of the file, or the document&apos;s own title. Accessibility rules ask for the title.</source>
        <translation>Was die Titelleiste des Betrachters nennt: den Namen der Datei oder den Titel des Dokuments selbst. Regeln der Barrierefreiheit verlangen den Titel.</translation>
    </message>
    <message>
        <source>After full screen</source>
        <translation>Nach Vollbild</translation>
    </message>
    <message>
        <source>The panel that shows once full screen is left.</source>
        <translation>Die Seitenleiste, die erscheint, wenn das Vollbild verlassen wird.</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>Leserichtung</translation>
    </message>
    <message>
        <source>Which page of a pair stands on the left. It does not change the text.</source>
        <translation>Welche Seite eines Paares links steht. Der Text ändert sich dadurch nicht.</translation>
    </message>
    <message>
        <source>Print scaling</source>
        <translation>Druckskalierung</translation>
    </message>
    <message>
        <source>How the print dialog scales pages at first. Forms and labels want none.</source>
        <translation>Wie der Druckdialog die Seiten zunächst skaliert. Formulare und Etiketten brauchen „Keine Skalierung“.</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>How the print dialog uses the two sides of the paper at first.</source>
        <translation>Wie der Druckdialog die beiden Seiten des Papiers zunächst nutzt.</translation>
    </message>
    <message>
        <source>Paper tray</source>
        <translation>Papierfach</translation>
    </message>
    <message>
        <source>Whether the size of the page selects the paper tray.</source>
        <translation>Ob die Größe der Seite das Papierfach bestimmt.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>The number of copies that the print dialog proposes.</source>
        <translation>Die Zahl der Kopien, die der Druckdialog vorschlägt.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The document&apos;s title, as its properties and the title bar show it.</source>
        <translation>Der Titel des Dokuments, wie ihn seine Eigenschaften und die Titelleiste zeigen.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The document&apos;s language, for example en-GB. Screen readers choose the voice by it.</source>
        <translation>Die Sprache des Dokuments, zum Beispiel de-DE. Bildschirmleser wählen danach die Stimme.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Anhänge</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Single page</source>
        <translation>Einzelne Seite</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>Two columns, odd left</source>
        <translation>Zwei Seiten fortlaufend, ungerade links</translation>
    </message>
    <message>
        <source>Two columns, odd right</source>
        <translation>Zwei Seiten fortlaufend, ungerade rechts</translation>
    </message>
    <message>
        <source>Two pages, odd left</source>
        <translation>Zwei Seiten, ungerade links</translation>
    </message>
    <message>
        <source>Two pages, odd right</source>
        <translation>Zwei Seiten, ungerade rechts</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>As the first page</source>
        <translation>Wie die erste Seite</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Wie sie war</translation>
    </message>
    <message>
        <source>Middle of the screen</source>
        <translation>Mitte des Bildschirms</translation>
    </message>
    <message>
        <source>Where it was</source>
        <translation>Wo es war</translation>
    </message>
    <message>
        <source>Document title</source>
        <translation>Dokumenttitel</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>No scaling</source>
        <translation>Keine Skalierung</translation>
    </message>
    <message>
        <source>As the viewer likes</source>
        <translation>Wie der Betrachter es will</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>Two sides, long edge</source>
        <translation>Beidseitig, lange Kante</translation>
    </message>
    <message>
        <source>Two sides, short edge</source>
        <translation>Beidseitig, kurze Kante</translation>
    </message>
    <message>
        <source>By the page size</source>
        <translation>Nach der Seitengröße</translation>
    </message>
    <message>
        <source>As the printer likes</source>
        <translation>Wie der Drucker es will</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Seitenhöhe</translation>
    </message>
    <message>
        <source>Fit visible</source>
        <translation>Sichtbarer Inhalt</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>A magnification, %1 is the number.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzte</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>Aus dem Dateinamen</translation>
    </message>
    <message>
        <source>Runs a script</source>
        <translation>Führt ein Skript aus</translation>
    </message>
    <message>
        <source>Opens a web page</source>
        <translation>Öffnet eine Webseite</translation>
    </message>
    <message>
        <source>Other action (%1)</source>
        <extracomment>%1 is the kind of an action as the document names it, such as Launch.</extracomment>
        <translation>Andere Aktion (%1)</translation>
    </message>
</context>
<context>
    <name>host::desktop::ActionTable</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>D&amp;okument</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Änderung</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Durch&amp;lauf</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>&amp;Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>Adds documents to the list</source>
        <translation>Fügt Dokumente zur Liste hinzu</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>Adds the documents of a folder and of those below it</source>
        <translation>Fügt die Dokumente eines Ordners und seiner Unterordner hinzu</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>Bericht &amp;speichern…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Speichert in einer Datei, was aus jedem Dokument geworden ist</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Closes the window; list and change are there again the next time</source>
        <translation>Schließt das Fenster; Liste und Änderung sind beim nächsten Mal wieder da</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Paste Documents</source>
        <translation>Dokumente &amp;einfügen</translation>
    </message>
    <message>
        <source>Adds the files, folders and paths that were copied elsewhere</source>
        <translation>Fügt Dateien, Ordner und Pfade hinzu, die anderswo kopiert wurden</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>Aus der Liste ent&amp;fernen</translation>
    </message>
    <message>
        <source>Takes the selected documents out of the list; the files stay</source>
        <translation>Nimmt die ausgewählten Dokumente aus der Liste; die Dateien bleiben</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Selects all documents that are shown</source>
        <translation>Wählt alle angezeigten Dokumente aus</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Shows the documents that have certain words</source>
        <translation>Zeigt die Dokumente, in denen bestimmte Wörter vorkommen</translation>
    </message>
    <message>
        <source>&amp;Open in Viewer</source>
        <translation>Im Betrachter ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the current document</source>
        <translation>Öffnet das aktuelle Dokument</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Im &amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>Shows the current document in the file manager</source>
        <translation>Zeigt das aktuelle Dokument in der Dateiverwaltung</translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation>Pfade &amp;kopieren</translation>
    </message>
    <message>
        <source>Copies the paths of the selected documents</source>
        <translation>Kopiert die Pfade der ausgewählten Dokumente</translation>
    </message>
    <message>
        <source>Give &amp;Password…</source>
        <translation>&amp;Passwort eingeben…</translation>
    </message>
    <message>
        <source>Tries a password on all documents that want one</source>
        <translation>Probiert ein Passwort bei allen Dokumenten, die eines verlangen</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>&amp;Like This Document</source>
        <translation>&amp;Wie dieses Dokument</translation>
    </message>
    <message>
        <source>Makes documents open as the current one does</source>
        <translation>Lässt Dokumente so öffnen wie das aktuelle</translation>
    </message>
    <message>
        <source>C&amp;onfigure the Action…</source>
        <translation>Aktion &amp;einstellen…</translation>
    </message>
    <message>
        <source>Makes the settings in the action&apos;s own window</source>
        <translation>Legt die Einstellungen im Fenster der Aktion selbst fest</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>Als &amp;Vorlage speichern…</translation>
    </message>
    <message>
        <source>Keeps the change under a name</source>
        <translation>Bewahrt die Änderung unter einem Namen auf</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>&amp;Nichts ändern</translation>
    </message>
    <message>
        <source>Sets nothing</source>
        <translation>Legt nichts fest</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>Als &amp;Befehl kopieren</translation>
    </message>
    <message>
        <source>Copies the command line that does the same</source>
        <translation>Kopiert die Befehlszeile, die dasselbe tut</translation>
    </message>
    <message>
        <source>&amp;Start…</source>
        <translation>&amp;Starten…</translation>
    </message>
    <message>
        <source>Says what will be done to how many documents, and asks</source>
        <translation>Sagt, was mit wie vielen Dokumenten geschieht, und fragt</translation>
    </message>
    <message>
        <source>&amp;Pause or Go On</source>
        <translation>&amp;Anhalten oder fortsetzen</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>Beginnt kein weiteres Dokument, bis es weitergeht</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Bearbeitet begonnene Dokumente zu Ende und beginnt keine weiteren</translation>
    </message>
    <message>
        <source>Try Failed &amp;Again</source>
        <translation>&amp;Fehlgeschlagene wiederholen</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Bearbeitet noch einmal, was fehlschlug oder nicht erledigt wurde</translation>
    </message>
    <message>
        <source>&amp;Undo Last Run…</source>
        <translation>&amp;Letzten Durchlauf rückgängig machen…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Stellt jedes Dokument so wieder her, wie es vor dem Durchlauf war</translation>
    </message>
    <message>
        <source>Earlier &amp;Runs…</source>
        <translation>F&amp;rühere Durchläufe…</translation>
    </message>
    <message>
        <source>Tells of the runs that can be undone</source>
        <translation>Nennt die Durchläufe, die rückgängig gemacht werden können</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Shows how the current document opens, before and after</source>
        <translation>Zeigt, wie sich das aktuelle Dokument öffnet, vorher und nachher</translation>
    </message>
    <message>
        <source>&amp;Next Part of the Window</source>
        <translation>&amp;Nächster Teil des Fensters</translation>
    </message>
    <message>
        <source>Goes from the list to the change and on</source>
        <translation>Geht von der Liste zur Änderung und weiter</translation>
    </message>
    <message>
        <source>P&amp;revious Part of the Window</source>
        <translation>V&amp;origer Teil des Fensters</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>Geht zurück</translation>
    </message>
    <message>
        <source>&amp;Settings and Viewers</source>
        <translation>&amp;Einstellungen und Betrachter</translation>
    </message>
    <message>
        <source>Explains each setting and which viewers follow it</source>
        <translation>Erklärt jede Einstellung und welche Betrachter ihr folgen</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Lists all keys</source>
        <translation>Nennt alle Tasten</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>&amp;Was ist das?</translation>
    </message>
    <message>
        <source>Explains what is clicked next</source>
        <translation>Erklärt, was als Nächstes angeklickt wird</translation>
    </message>
    <message>
        <source>&amp;About Quintar</source>
        <translation>Ü&amp;ber Quintar</translation>
    </message>
    <message>
        <source>Names the version</source>
        <translation>Nennt die Version</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>Chooses what the list tells of each document</source>
        <translation>Wählt, was die Liste über jedes Dokument sagt</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>So&amp;rtieren nach</translation>
    </message>
    <message>
        <source>Chooses in which order the documents stand</source>
        <translation>Wählt, in welcher Reihenfolge die Dokumente stehen</translation>
    </message>
    <message>
        <source>Move Column &amp;Left</source>
        <translation>Spalte nach &amp;links</translation>
    </message>
    <message>
        <source>Moves the column that the keyboard is in</source>
        <translation>Verschiebt die Spalte, in der die Tastatur steht</translation>
    </message>
    <message>
        <source>Move Column Ri&amp;ght</source>
        <translation>Spalte nach r&amp;echts</translation>
    </message>
    <message>
        <source>Takes back what was last added, removed or set</source>
        <translation>Nimmt das zuletzt Hinzugefügte, Entfernte oder Eingestellte zurück</translation>
    </message>
    <message>
        <source>Does once more what was taken back</source>
        <translation>Tut noch einmal, was zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Sho&amp;w Results</source>
        <translation>Er&amp;gebnisse anzeigen</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Öffnet den Ordner, in den der Durchlauf geschrieben hat</translation>
    </message>
    <message>
        <source>Reads the documents that are shown once more</source>
        <translation>Liest die angezeigten Dokumente noch einmal ein</translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message>
        <source>Show Them</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show them: %1</source>
        <translation>Anzeigen: %1</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>Nich&amp;ts ändern</translation>
    </message>
    <message>
        <source>Cha&amp;nge for</source>
        <translation>&amp;Für</translation>
    </message>
    <message>
        <source>Change for</source>
        <translation>Für</translation>
    </message>
    <message>
        <source>A change is for all documents that are shown, or for those that are selected. Documents that the search or the filter hides stay as they are.</source>
        <translation>Eine Änderung gilt für alle angezeigten Dokumente oder für die ausgewählten. Dokumente, die Suche oder Filter verbergen, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Changes under a name: views that you keep, and the action lists and favourites of the action “Initial View”.</source>
        <translation>Benannte Änderungen: Ansichten, die Sie aufbewahren, und die Aktionslisten und Favoriten der Aktion „Initial View“.</translation>
    </message>
    <message>
        <source>Title and language</source>
        <translation>Titel und Sprache</translation>
    </message>
    <message>
        <source>Viewer&apos;s window</source>
        <translation>Fenster des Betrachters</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>C&amp;onfigure…</source>
        <translation>&amp;Konfigurieren…</translation>
    </message>
    <message numerus="yes">
        <source>all %Ln document(s)</source>
        <translation>
            <numerusform>das %Ln Dokument</numerusform>
            <numerusform>alle %Ln Dokumente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %Ln shown</source>
        <translation>
            <numerusform>das %Ln angezeigte</numerusform>
            <numerusform>alle %Ln angezeigten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %Ln selected</source>
        <translation>
            <numerusform>das %Ln ausgewählte</numerusform>
            <numerusform>die %Ln ausgewählten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChildRun</name>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>the program said more than can be understood</source>
        <translation>das Programm hat mehr gesagt, als zu verstehen ist</translation>
    </message>
    <message>
        <source>%1 crashed</source>
        <translation>%1 ist abgestürzt</translation>
    </message>
    <message>
        <source>%1 ended too early, with exit status %2</source>
        <translation>%1 hat sich zu früh beendet, mit dem Status %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::ColumnMenus</name>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>A&amp;bsteigend</translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>The clipboard holds no files, folders or paths.</source>
        <translation>Die Zwischenablage enthält keine Dateien, Ordner oder Pfade.</translation>
    </message>
    <message>
        <source>Folder for the Results</source>
        <translation>Ordner für die Ergebnisse</translation>
    </message>
    <message>
        <source>Undo this run?</source>
        <translation>Diesen Durchlauf rückgängig machen?</translation>
    </message>
    <message numerus="yes">
        <source>Give %Ln document(s) back as they were?</source>
        <translation>
            <numerusform>%Ln Dokument so wiederherstellen, wie es war?</numerusform>
            <numerusform>%Ln Dokumente so wiederherstellen, wie sie waren?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents that have been changed since by something else are left alone.</source>
        <translation>Dokumente, die seither anderweitig geändert wurden, bleiben unberührt.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig machen</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>report.tsv</source>
        <translation>bericht.tsv</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>The report is in %1.</source>
        <translation>Der Bericht liegt in %1.</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Der Bericht konnte nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>About Quintar</source>
        <translation>Über Quintar</translation>
    </message>
    <message>
        <source>Quintar %1</source>
        <translation>Quintar %1</translation>
    </message>
    <message>
        <source>Says how PDF documents open. It adds to a document and never takes away: every run in place can be undone.</source>
        <translation>Sagt, wie sich PDF-Dokumente öffnen. Es fügt einem Dokument etwas hinzu und nimmt nie etwas weg: Jeder Durchlauf in den Dokumenten selbst kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>No viewer took %1.</source>
        <translation>Kein Betrachter hat %1 angenommen.</translation>
    </message>
    <message>
        <source>No file manager took %1.</source>
        <translation>Keine Dateiverwaltung hat %1 angenommen.</translation>
    </message>
    <message>
        <source>The command is in the clipboard.</source>
        <translation>Der Befehl ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>The change makes documents open as %1 does.</source>
        <translation>Die Änderung lässt Dokumente so öffnen wie %1.</translation>
    </message>
    <message>
        <source>The password is tried on all documents that want one. It is kept until this window is closed.</source>
        <translation>Das Passwort wird bei allen Dokumenten probiert, die eines verlangen. Es wird behalten, bis dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>The command is in the clipboard. It waits for the password to be typed.</source>
        <translation>Der Befehl ist in der Zwischenablage. Er wartet darauf, dass das Passwort eingegeben wird.</translation>
    </message>
    <message>
        <source>No document would be changed.</source>
        <translation>Kein Dokument würde geändert.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again to try once more.</source>
        <translation>Was sich ändern würde, ist nicht bekannt. Lesen Sie die Dokumente neu ein, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>host::desktop::DestinationRow</name>
    <message>
        <source>The documents themselves</source>
        <translation>In die Dokumente selbst</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>In einen Ordner</translation>
    </message>
    <message>
        <source>Beside them, under another name</source>
        <translation>Daneben, unter anderem Namen</translation>
    </message>
    <message>
        <source>Write to</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>A run changes the documents themselves, which can be undone, or leaves them as they are and writes its results into a folder or beside them.</source>
        <translation>Ein Durchlauf ändert die Dokumente selbst, was rückgängig gemacht werden kann, oder lässt sie, wie sie sind, und schreibt die Ergebnisse in einen Ordner oder daneben.</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Ordner für die Ergebnisse</translation>
    </message>
    <message>
        <source>Choose the folder for the results</source>
        <translation>Ordner für die Ergebnisse wählen</translation>
    </message>
    <message>
        <source>Added to the names</source>
        <translation>Anhang an die Namen</translation>
    </message>
    <message>
        <source>The run can be undone.</source>
        <translation>Der Durchlauf kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>The documents stay as they are.</source>
        <translation>Die Dokumente bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>manual.pdf becomes manual-%1.pdf.</source>
        <translation>Aus handbuch.pdf wird handbuch-%1.pdf.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>Schre&amp;iben</translation>
    </message>
</context>
<context>
    <name>host::desktop::DetailLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1: %2. %3</translation>
    </message>
    <message>
        <source>About the current document</source>
        <translation>Über das aktuelle Dokument</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Wählen Sie ein Dokument aus, um zu sehen, wie es sich öffnet.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::DocumentView</name>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Wiederherstellen: %Ln Dokument entfernen</numerusform>
            <numerusform>&amp;Wiederherstellen: %Ln Dokumente entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rückgängig: %Ln Dokument entfernen</numerusform>
            <numerusform>&amp;Rückgängig: %Ln Dokumente entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Wiederherstellen: %Ln Dokument hinzufügen</numerusform>
            <numerusform>&amp;Wiederherstellen: %Ln Dokumente hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rückgängig: %Ln Dokument hinzufügen</numerusform>
            <numerusform>&amp;Rückgängig: %Ln Dokumente hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Redo Changing the Settings</source>
        <translation>&amp;Wiederherstellen: Einstellungen ändern</translation>
    </message>
    <message>
        <source>&amp;Undo Changing the Settings</source>
        <translation>&amp;Rückgängig: Einstellungen ändern</translation>
    </message>
    <message>
        <source>&amp;Redo Setting “%1”</source>
        <translation>&amp;Wiederherstellen: „%1“ einstellen</translation>
    </message>
    <message>
        <source>&amp;Undo Setting “%1”</source>
        <translation>&amp;Rückgängig: „%1“ einstellen</translation>
    </message>
</context>
<context>
    <name>host::desktop::EmptyPage</name>
    <message>
        <source>Say how PDF documents open</source>
        <translation>Sagen Sie, wie sich PDF-Dokumente öffnen</translation>
    </message>
    <message>
        <source>With their bookmarks, with their title, at page 1.
Drop documents or folders here. Nothing is changed before you start it.</source>
        <translation>Mit ihren Lesezeichen, mit ihrem Titel, auf Seite 1.
Ziehen Sie Dokumente oder Ordner hierher. Nichts wird geändert, bevor Sie es starten.</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien hinzu&amp;fügen…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ordner hin&amp;zufügen…</translation>
    </message>
    <message>
        <source>A document that opens with its bookmarks and its title</source>
        <translation>Ein Dokument, das sich mit Lesezeichen und Titel öffnet</translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message>
        <source>&amp;Show:</source>
        <translation>Zei&amp;gen:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search name, folder, title</source>
        <translation>In Name, Ordner, Titel suchen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s)</source>
        <translation>
            <numerusform>%Ln Dokument</numerusform>
            <numerusform>%Ln Dokumente</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 angezeigt</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Shows all documents again (Esc)</source>
        <translation>Zeigt wieder alle Dokumente (Esc)</translation>
    </message>
</context>
<context>
    <name>host::desktop::HelpWindow</name>
    <message>
        <source>Help - Quintar</source>
        <translation>Hilfe – Quintar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>host::desktop::HistoryDialog</name>
    <message>
        <source>Earlier Runs</source>
        <translation>Frühere Durchläufe</translation>
    </message>
    <message>
        <source>Undoing gives each document back as it was before the run. Documents that something else has changed since are left alone.</source>
        <translation>Das stellt jedes Dokument so wieder her, wie es vor dem Durchlauf war. Dokumente, die seither anderweitig geändert wurden, bleiben unberührt.</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>Durchlauf &amp;rückgängig machen…</translation>
    </message>
    <message>
        <source>Earlier runs</source>
        <translation>Frühere Durchläufe</translation>
    </message>
</context>
<context>
    <name>host::desktop::Logout</name>
    <message>
        <source>&amp;Stop and Log Out</source>
        <translation>&amp;Abbrechen und abmelden</translation>
    </message>
</context>
<context>
    <name>host::desktop::MainWindow</name>
    <message>
        <source>Quintar</source>
        <translation>Quintar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) - Quintar</source>
        <translation>
            <numerusform>%Ln Dokument – Quintar</numerusform>
            <numerusform>%Ln Dokumente – Quintar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 % - Quintar</source>
        <translation>%1&#xa0;% – Quintar</translation>
    </message>
    <message>
        <source>&amp;Stop and Close</source>
        <translation>&amp;Abbrechen und schließen</translation>
    </message>
    <message>
        <source>What was dropped are no files or folders.</source>
        <translation>Was hierher gezogen wurde, sind keine Dateien oder Ordner.</translation>
    </message>
</context>
<context>
    <name>host::desktop::PresetMenu</name>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Action Lists</source>
        <translation>Aktionslisten</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Nothing is kept yet</source>
        <translation>Noch nichts gespeichert</translation>
    </message>
    <message>
        <source>&amp;Remove Preset</source>
        <translation>Vorlage &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove the preset “%1”?</source>
        <translation>Die Vorlage „%1“ entfernen?</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>The change is kept as “%1”.</source>
        <translation>Die Änderung ist als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Die Vorlage „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>There is one of this name already.</source>
        <translation>Es gibt schon eine mit diesem Namen.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
</context>
<context>
    <name>host::desktop::PreviewPane</name>
    <message>
        <source>full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>bookmarks panel</source>
        <translation>Seitenleiste mit Lesezeichen</translation>
    </message>
    <message>
        <source>pages panel</source>
        <translation>Seitenleiste mit Seiten</translation>
    </message>
    <message>
        <source>layers panel</source>
        <translation>Seitenleiste mit Ebenen</translation>
    </message>
    <message>
        <source>attachments panel</source>
        <translation>Seitenleiste mit Anhängen</translation>
    </message>
    <message>
        <source>no panel</source>
        <translation>keine Seitenleiste</translation>
    </message>
    <message>
        <source>title bar “%1”, %2, page %3 of %4</source>
        <translation>Titelleiste „%1“, %2, Seite %3 von %4</translation>
    </message>
    <message>
        <source>Many viewers ask before full screen; browsers ignore it.</source>
        <translation>Viele Betrachter fragen vor dem Vollbild; Browser beachten es nicht.</translation>
    </message>
    <message>
        <source>Full-featured viewers do this; browsers ignore bars and windows.</source>
        <translation>Umfassende Betrachter tun das; Browser beachten Leisten und Fenster nicht.</translation>
    </message>
    <message>
        <source>Viewers that have this panel show it.</source>
        <translation>Betrachter, die diese Seitenleiste haben, zeigen sie.</translation>
    </message>
    <message>
        <source>Full-featured viewers and Firefox follow the layout; others keep their own.</source>
        <translation>Umfassende Betrachter und Firefox folgen dem Layout; andere behalten ihr eigenes.</translation>
    </message>
    <message>
        <source>Most desktop viewers do this; browsers follow page and zoom.</source>
        <translation>Die meisten Betrachter auf dem Desktop tun das; Browser folgen Seite und Zoom.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>A drawing of the first moment of the current document, as it opens now and as it will. Each viewer decides for itself what of this it does.</source>
        <translation>Eine Zeichnung vom ersten Augenblick des aktuellen Dokuments, wie es sich jetzt öffnet und wie es sich öffnen wird. Jeder Betrachter entscheidet selbst, was davon er tut.</translation>
    </message>
    <message>
        <source>Opens with %1.</source>
        <translation>Öffnet sich mit %1.</translation>
    </message>
    <message>
        <source>Before: %1. After: %2. %3</source>
        <translation>Vorher: %1. Nachher: %2. %3</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Wählen Sie ein Dokument aus, um zu sehen, wie es sich öffnet.</translation>
    </message>
    <message>
        <source>Opens like this</source>
        <translation>Öffnet sich so</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>host::desktop::Reading</name>
    <message>
        <source>it cannot be read</source>
        <translation>es kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>not read: reading was stopped</source>
        <translation>nicht gelesen: Das Einlesen wurde abgebrochen</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message>
        <source>Show Wh&amp;y</source>
        <translation>Gründe an&amp;zeigen</translation>
    </message>
    <message>
        <source>Shows the documents that failed or cannot be changed</source>
        <translation>Zeigt die Dokumente, die fehlschlugen oder nicht geändert werden können</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>&amp;Rückgängig machen…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Stellt jedes Dokument so wieder her, wie es vor dem Durchlauf war</translation>
    </message>
    <message>
        <source>Tr&amp;y Failed Again</source>
        <translation>Fehlgeschlagene &amp;wiederholen</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Bearbeitet noch einmal, was fehlschlug oder nicht erledigt wurde</translation>
    </message>
    <message>
        <source>Save Repor&amp;t…</source>
        <translation>Beri&amp;cht speichern…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Speichert in einer Datei, was aus jedem Dokument geworden ist</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>Anhal&amp;ten</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>Beginnt kein weiteres Dokument, bis es weitergeht</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Bearbeitet begonnene Dokumente zu Ende und beginnt keine weiteren</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln Fa&amp;iled</source>
        <translation>
            <numerusform>%Ln Fehlgeschlagenes an&amp;zeigen</numerusform>
            <numerusform>%Ln Fehlgeschlagene an&amp;zeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>Go &amp;On</source>
        <translation>Fo&amp;rtsetzen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message numerus="yes">
        <source>Reading… %Ln document(s) so far</source>
        <translation>
            <numerusform>Einlesen… bisher %Ln Dokument</numerusform>
            <numerusform>Einlesen… bisher %Ln Dokumente</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change… %1</source>
        <translation>Ermitteln, was sich ändern würde… %1</translation>
    </message>
    <message>
        <source>Changing… %1</source>
        <translation>Ändern… %1</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>Angehalten bei %1</translation>
    </message>
    <message>
        <source>Stopping… documents that are being worked on are finished</source>
        <translation>Abbrechen… begonnene Dokumente werden zu Ende bearbeitet</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Rückgängig machen…</translation>
    </message>
    <message>
        <source>Say on the right what is to change.</source>
        <translation>Sagen Sie rechts, was geändert werden soll.</translation>
    </message>
    <message>
        <source>Nothing would change</source>
        <translation>Nichts würde sich ändern</translation>
    </message>
    <message numerus="yes">
        <source>%Ln will change</source>
        <translation>
            <numerusform>%Ln wird geändert</numerusform>
            <numerusform>%Ln werden geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln open so already</source>
        <translation>
            <numerusform>%Ln öffnet sich schon so</numerusform>
            <numerusform>%Ln öffnen sich schon so</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be changed</source>
        <translation>
            <numerusform>%Ln nicht änderbar</numerusform>
            <numerusform>%Ln nicht änderbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln geändert</numerusform>
            <numerusform>%Ln geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln as they were</source>
        <translation>
            <numerusform>%Ln wie es war</numerusform>
            <numerusform>%Ln wie sie waren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not done</source>
        <translation>
            <numerusform>%Ln nicht erledigt</numerusform>
            <numerusform>%Ln nicht erledigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Sekunde</numerusform>
            <numerusform>noch etwa %Ln Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>noch etwa %Ln Minute</numerusform>
            <numerusform>noch etwa %Ln Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A number of documents, and why they cannot be changed: &quot;4 signed&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undoing… %1</source>
        <translation>Rückgängig machen… %1</translation>
    </message>
    <message>
        <source>Show Res&amp;ults</source>
        <translation>E&amp;rgebnisse anzeigen</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Öffnet den Ordner, in den der Durchlauf geschrieben hat</translation>
    </message>
    <message>
        <source>No document is shown that the change could be for.</source>
        <translation>Es wird kein Dokument gezeigt, für das die Änderung sein könnte.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again (F5) to find out.</source>
        <translation>Was sich ändern würde, ist nicht bekannt. Lesen Sie die Dokumente neu ein (F5), um es zu erfahren.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln geschrieben</numerusform>
            <numerusform>%Ln geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln copied as they were</source>
        <translation>
            <numerusform>%Ln unverändert kopiert</numerusform>
            <numerusform>%Ln unverändert kopiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message>
        <source>The run could not be written down in %1: %2</source>
        <translation>Der Durchlauf konnte nicht in %1 festgehalten werden: %2</translation>
    </message>
    <message>
        <source>A run that was broken off</source>
        <translation>Ein abgerissener Durchlauf</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln geändert</numerusform>
            <numerusform>%Ln geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>undone</source>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>kann rückgängig gemacht werden</translation>
    </message>
    <message>
        <source>documents are as they were</source>
        <translation>die Dokumente sind, wie sie waren</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Wohin</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>Wie viele</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln geschrieben</numerusform>
            <numerusform>%Ln geschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>Broken off: %1</source>
        <translation>Abgerissen: %1</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunMachine</name>
    <message>
        <source>Close the settings first.</source>
        <translation>Schließen Sie zuerst die Einstellungen.</translation>
    </message>
    <message>
        <source>Wait until the run has ended.</source>
        <translation>Warten Sie, bis der Durchlauf beendet ist.</translation>
    </message>
    <message>
        <source>Add documents first.</source>
        <translation>Fügen Sie zuerst Dokumente hinzu.</translation>
    </message>
    <message>
        <source>Wait until all documents are read.</source>
        <translation>Warten Sie, bis alle Dokumente eingelesen sind.</translation>
    </message>
    <message>
        <source>Wait until it is known what would change.</source>
        <translation>Warten Sie, bis bekannt ist, was sich ändern würde.</translation>
    </message>
    <message>
        <source>Wait until the run is undone.</source>
        <translation>Warten Sie, bis der Durchlauf rückgängig gemacht ist.</translation>
    </message>
    <message>
        <source>Say first what is to change.</source>
        <translation>Sagen Sie zuerst, was geändert werden soll.</translation>
    </message>
    <message>
        <source>Nothing is under way.</source>
        <translation>Nichts ist im Gange.</translation>
    </message>
    <message>
        <source>This run is done. Change something to start another one.</source>
        <translation>Dieser Durchlauf ist erledigt. Ändern Sie etwas, um einen neuen zu starten.</translation>
    </message>
</context>
<context>
    <name>host::desktop::Session</name>
    <message>
        <source>A list of an earlier session cannot be read, and is left as it is: %1</source>
        <translation>Eine Liste einer früheren Sitzung kann nicht gelesen werden und bleibt, wie sie ist: %1</translation>
    </message>
    <message>
        <source>List and change will not be there the next time: %1: %2</source>
        <translation>Liste und Änderung werden beim nächsten Mal nicht da sein: %1: %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::SettingRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1, Zahl</translation>
    </message>
    <message>
        <source>%1, text</source>
        <translation>%1, Text</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erste</translation>
    </message>
    <message>
        <source>Page…</source>
        <translation>Seite…</translation>
    </message>
    <message>
        <source>Number…</source>
        <translation>Anzahl…</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>Aus dem Dateinamen</translation>
    </message>
    <message>
        <source>From the file name, where missing</source>
        <translation>Aus dem Dateinamen, wo er fehlt</translation>
    </message>
    <message>
        <source>This text:</source>
        <translation>Dieser Text:</translation>
    </message>
    <message>
        <source>Remove the setting</source>
        <translation>Einstellung entfernen</translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) will be changed in place.</source>
        <translation>
            <numerusform>%Ln Dokument wird direkt geändert.</numerusform>
            <numerusform>%Ln Dokumente werden direkt geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written to %1.</source>
        <translation>
            <numerusform>%Ln Ergebnis wird nach %1 geschrieben.</numerusform>
            <numerusform>%Ln Ergebnisse werden nach %1 geschrieben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>%Ln Ergebnis wird neben das Dokument geschrieben, mit „-%1“ am Namen.</numerusform>
            <numerusform>%Ln Ergebnisse werden neben die Dokumente geschrieben, mit „-%1“ an den Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) there will be replaced.</source>
        <translation>
            <numerusform>%Ln Datei dort wird ersetzt.</numerusform>
            <numerusform>%Ln Dateien dort werden ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>What the run changes can be undone.</source>
        <translation>Was der Durchlauf ändert, kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>The documents themselves stay as they are.</source>
        <translation>Die Dokumente selbst bleiben, wie sie sind.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%Ln Dokument kann nicht geändert werden und bleibt, wie es ist.</numerusform>
            <numerusform>%Ln Dokumente können nicht geändert werden und bleiben, wie sie sind.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ToolBar</name>
    <message>
        <source>Re&amp;move</source>
        <translation>Entfer&amp;nen</translation>
    </message>
    <message>
        <source>S&amp;tart…</source>
        <translation>Start&amp;en…</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hinz&amp;ufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message>
        <source>What you added waits until this is done.</source>
        <translation>Was Sie hinzugefügt haben, wartet, bis dies erledigt ist.</translation>
    </message>
    <message>
        <source>Reading broke off.</source>
        <translation>Das Einlesen ist abgerissen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were in the list already.</source>
        <translation>
            <numerusform>%Ln Dokument war schon in der Liste.</numerusform>
            <numerusform>%Ln Dokumente waren schon in der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change broke off.</source>
        <translation>Das Ermitteln der Änderungen ist abgerissen.</translation>
    </message>
    <message>
        <source>Nothing is begun: the folder for reports cannot be made: %1</source>
        <translation>Nichts wurde begonnen: Der Ordner für Berichte kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>The run broke off.</source>
        <translation>Der Durchlauf ist abgerissen.</translation>
    </message>
    <message>
        <source>Undoing broke off.</source>
        <translation>Das Rückgängigmachen ist abgerissen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%Ln Dokument ist wieder wie vor dem Durchlauf.</numerusform>
            <numerusform>%Ln Dokumente sind wieder wie vor dem Durchlauf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%Ln Dokument blieb unberührt, da es nicht mehr so ist, wie der Durchlauf es hinterließ.</numerusform>
            <numerusform>%Ln Dokumente blieben unberührt, da sie nicht mehr so sind, wie der Durchlauf sie hinterließ.</numerusform>
        </translation>
    </message>
    <message>
        <source>No document of the list wants a password.</source>
        <translation>Kein Dokument der Liste verlangt ein Passwort.</translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>Das Rückgängigmachen wurde angehalten: %Ln Dokument ist wieder wie vor dem Durchlauf.</numerusform>
            <numerusform>Das Rückgängigmachen wurde angehalten: %Ln Dokumente sind wieder wie vor dem Durchlauf.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading was stopped. What was not found until then is not in the list.</source>
        <translation>Das Einlesen wurde abgebrochen. Was bis dahin nicht gefunden war, steht nicht in der Liste.</translation>
    </message>
    <message>
        <source>No PDF document was found there.</source>
        <translation>Dort wurde kein PDF-Dokument gefunden.</translation>
    </message>
</context>
</TS>
