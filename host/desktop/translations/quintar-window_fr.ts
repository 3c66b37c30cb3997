<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionDialog</name>
    <message>
        <source>Settings of the action</source>
        <translation>Réglages de l’action</translation>
    </message>
</context>
<context>
    <name>ChangeDraft</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>&#xa0;; </translation>
    </message>
</context>
<context>
    <name>ChangeWarnings</name>
    <message numerus="yes">
        <source>%Ln document(s) have no bookmarks: the panel will be empty.</source>
        <translation>
            <numerusform>%Ln document n’a pas de signets&#xa0;: le volet sera vide.</numerusform>
            <numerusform>%Ln documents n’ont pas de signets&#xa0;: le volet sera vide.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) have no title to show.</source>
        <translation>
            <numerusform>%Ln document n’a pas de titre à afficher.</numerusform>
            <numerusform>%Ln documents n’ont pas de titre à afficher.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %Ln page(s); it cannot open there.</source>
        <translation>
            <numerusform>Le document le plus court a %Ln page&#xa0;; il ne peut pas s’ouvrir là.</numerusform>
            <numerusform>Le document le plus court a %Ln pages&#xa0;; il ne peut pas s’ouvrir là.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%Ln document est signé et reste tel quel, sauf avis contraire de votre part.</numerusform>
            <numerusform>%Ln documents sont signés et restent tels quels, sauf avis contraire de votre part.</numerusform>
        </translation>
    </message>
    <message>
        <source>Full screen: many viewers ask first, and browsers ignore it.</source>
        <translation>Plein écran&#xa0;: bien des visionneuses demandent d’abord, et les navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>Browsers ignore what is said about windows and bars.</source>
        <translation>Les navigateurs ignorent ce qui est dit des fenêtres et des barres.</translation>
    </message>
    <message>
        <source>Without the menu bar, readers need the keyboard.</source>
        <translation>Sans la barre de menus, les lecteurs ont besoin du clavier.</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>The name of the file. The sign before it says what a run would do or did.</source>
        <translation>Le nom du fichier. Le signe qui le précède dit ce qu’un traitement ferait ou a fait.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Where the document lies.</source>
        <translation>Où se trouve le document.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The document&apos;s own title, from its properties.</source>
        <translation>Le titre propre du document, d’après ses propriétés.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>How many pages the document has.</source>
        <translation>Le nombre de pages du document.</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>How many bookmarks the document has.</source>
        <translation>Le nombre de signets du document.</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Volet</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens.</source>
        <translation>Ce qui se trouve à côté de la page quand le document s’ouvre.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>How the pages are set out.</source>
        <translation>Comment les pages sont disposées.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>The page that is shown first.</source>
        <translation>La page affichée en premier.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown.</source>
        <translation>La taille à laquelle la première page s’affiche.</translation>
    </message>
    <message>
        <source>Title Bar</source>
        <translation>Barre de titre</translation>
    </message>
    <message>
        <source>Whether the title bar of the viewer says the title or the name of the file.</source>
        <translation>Si la barre de titre de la visionneuse donne le titre ou le nom du fichier.</translation>
    </message>
    <message>
        <source>Window Options</source>
        <translation>Options de fenêtre</translation>
    </message>
    <message>
        <source>What else the document asks for: hidden bars, the size and place of the window, printing.</source>
        <translation>Ce que le document demande encore&#xa0;: barres masquées, taille et place de la fenêtre, impression.</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signé</translation>
    </message>
    <message>
        <source>Viewers report any change of a signed document.</source>
        <translation>Les visionneuses signalent toute modification d’un document signé.</translation>
    </message>
    <message>
        <source>Certified</source>
        <translation>Certifié</translation>
    </message>
    <message>
        <source>A certified document says what may be done to it.</source>
        <translation>Un document certifié dit ce qu’on peut en faire.</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Chiffré</translation>
    </message>
    <message>
        <source>An encrypted document may need a password to be read or changed.</source>
        <translation>Un document chiffré peut demander un mot de passe pour être lu ou modifié.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>What a run would do to the document, or did, and why not.</source>
        <translation>Ce qu’un traitement ferait au document, ou a fait, et pourquoi il ne l’a pas fait.</translation>
    </message>
</context>
<context>
    <name>Destination</name>
    <message>
        <source>Choose the folder for the results.</source>
        <translation>Choisissez le dossier des résultats.</translation>
    </message>
    <message>
        <source>Say what is added to the names.</source>
        <translation>Indiquez ce qui s’ajoute aux noms.</translation>
    </message>
    <message>
        <source>What is added to the names cannot hold a slash.</source>
        <translation>Ce qui s’ajoute aux noms ne peut pas contenir de barre oblique.</translation>
    </message>
    <message>
        <source>in place</source>
        <translation>sur place</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>beside them, as name-%1.pdf</source>
        <translation>à côté, sous nom-%1.pdf</translation>
    </message>
    <message>
        <source>The folder has to begin with a slash or with ~/.</source>
        <translation>Le dossier doit commencer par une barre oblique ou par ~/.</translation>
    </message>
    <message>
        <source>Leave out the hyphen and .pdf: they are added anyway.</source>
        <translation>Omettez le trait d’union et .pdf : ils sont ajoutés de toute façon.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>Documents PDF (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>DocumentFilter</name>
    <message>
        <source>All documents</source>
        <translation>Tous les documents</translation>
    </message>
    <message>
        <source>Do not show their title</source>
        <translation>N’affichent pas leur titre</translation>
    </message>
    <message>
        <source>Have no title</source>
        <translation>N’ont pas de titre</translation>
    </message>
    <message>
        <source>Have bookmarks but do not show them</source>
        <translation>Ont des signets mais ne les affichent pas</translation>
    </message>
    <message>
        <source>Have no bookmarks</source>
        <translation>N’ont pas de signets</translation>
    </message>
    <message>
        <source>Open at a page of their own</source>
        <translation>S’ouvrent à une page précise</translation>
    </message>
    <message>
        <source>Will change</source>
        <translation>Seront modifiés</translation>
    </message>
    <message>
        <source>Failed or cannot be changed</source>
        <translation>En échec ou non modifiables</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Signés</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Chiffrés</translation>
    </message>
    <message>
        <source>Have a title but do not show it</source>
        <translation>Ont un titre mais ne l’affichent pas</translation>
    </message>
    <message>
        <source>Failed in the run</source>
        <translation>En échec lors du traitement</translation>
    </message>
    <message>
        <source>Were changed or written</source>
        <translation>Ont été modifiés ou écrits</translation>
    </message>
</context>
<context>
    <name>EventReader</name>
    <message>
        <source>the program and the window are of different versions</source>
        <translation>le programme et la fenêtre n’ont pas la même version</translation>
    </message>
    <message>
        <source>the program said something that is not understood</source>
        <translation>le programme a dit quelque chose d’incompréhensible</translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %Ln document(s) that want one.</source>
        <translation>
            <numerusform>Le mot de passe n’ouvre pas le %Ln document qui en demande un.</numerusform>
            <numerusform>Le mot de passe n’ouvre aucun des %Ln documents qui en demandent un.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %Ln document(s).</source>
        <translation>
            <numerusform>Le mot de passe ouvre %Ln document.</numerusform>
            <numerusform>Le mot de passe ouvre %Ln documents.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) want another one.</source>
        <translation>
            <numerusform>%Ln document en demande un autre.</numerusform>
            <numerusform>%Ln documents en demandent un autre.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The preset cannot be kept: %1</source>
        <translation>Le préréglage ne peut pas être conservé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The preset cannot be removed: %1</source>
        <translation>Le préréglage ne peut pas être supprimé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ReasonTexts</name>
    <message>
        <source>Signed: viewers would report the change.</source>
        <translation>Signé&#xa0;: les visionneuses signaleraient la modification.</translation>
    </message>
    <message>
        <source>Certified: any change breaks the certification.</source>
        <translation>Certifié&#xa0;: toute modification rompt la certification.</translation>
    </message>
    <message>
        <source>A password is needed to open it.</source>
        <translation>Un mot de passe est nécessaire pour l’ouvrir.</translation>
    </message>
    <message>
        <source>Its owner does not allow changes without the owner&apos;s password.</source>
        <translation>Son propriétaire n’autorise les modifications qu’avec son mot de passe.</translation>
    </message>
    <message>
        <source>It is encrypted in a way that cannot be read here.</source>
        <translation>Il est chiffré d’une manière qui ne peut pas être lue ici.</translation>
    </message>
    <message>
        <source>Not a PDF document.</source>
        <translation>Ce n’est pas un document PDF.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>Too damaged to be read.</source>
        <translation>Trop endommagé pour être lu.</translation>
    </message>
    <message>
        <source>Damaged, so it is in doubt what it holds; nothing is changed.</source>
        <translation>Endommagé&#xa0;: son contenu est incertain, rien n’est modifié.</translation>
    </message>
    <message>
        <source>Damaged, so nothing can be added to it.</source>
        <translation>Endommagé&#xa0;: rien ne peut lui être ajouté.</translation>
    </message>
    <message>
        <source>Too complex to be read.</source>
        <translation>Trop complexe pour être lu.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Le fichier n’est plus là.</translation>
    </message>
    <message>
        <source>You may not read or change it here.</source>
        <translation>Vous n’avez pas le droit de le lire ou de le modifier ici.</translation>
    </message>
    <message>
        <source>Not a file that can be read.</source>
        <translation>Ce n’est pas un fichier lisible.</translation>
    </message>
    <message>
        <source>The disk could not be read.</source>
        <translation>Le disque n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>The result could not be written.</source>
        <translation>Le résultat n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile.</source>
        <translation>Un autre programme l’a modifié entre-temps.</translation>
    </message>
    <message>
        <source>It has been changed since the run, so it stays.</source>
        <translation>Il a été modifié depuis le traitement et reste donc tel quel.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>It lies where nothing may be written.</source>
        <translation>Il se trouve là où rien ne peut être écrit.</translation>
    </message>
    <message>
        <source>It took too long and was given up.</source>
        <translation>C’était trop long et a été abandonné.</translation>
    </message>
    <message>
        <source>It needs too much memory and was given up.</source>
        <translation>Il demande trop de mémoire et a été abandonné.</translation>
    </message>
    <message>
        <source>Reading it crashed the reader; it is as it was.</source>
        <translation>Sa lecture a fait planter le lecteur&#xa0;; il est tel qu’il était.</translation>
    </message>
    <message>
        <source>&amp;Give Password…</source>
        <translation>Saisir &amp;un mot de passe…</translation>
    </message>
    <message>
        <source>Append A&amp;ll the Same</source>
        <translation>Ajo&amp;uter malgré tout</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Lire à no&amp;uveau</translation>
    </message>
    <message>
        <source>Show in Fo&amp;lder</source>
        <translation>O&amp;uvrir le dossier</translation>
    </message>
    <message>
        <source>signed</source>
        <translation>signés</translation>
    </message>
    <message>
        <source>certified</source>
        <translation>certifiés</translation>
    </message>
    <message>
        <source>password needed</source>
        <translation>avec mot de passe</translation>
    </message>
    <message>
        <source>encrypted</source>
        <translation>chiffrés</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagés</translation>
    </message>
    <message>
        <source>out of reach</source>
        <translation>inaccessibles</translation>
    </message>
    <message>
        <source>unsafe to read</source>
        <translation>dangereux à lire</translation>
    </message>
    <message>
        <source>Its properties are damaged, so its title cannot be set.</source>
        <translation>Ses propriétés sont endommagées ; son titre ne peut pas être défini.</translation>
    </message>
    <message>
        <source>It opens with an action that cannot be taken over.</source>
        <translation>Il s’ouvre avec une action qui ne peut pas être reprise.</translation>
    </message>
    <message>
        <source>It is larger than a limit allows.</source>
        <translation>Il dépasse une taille limite.</translation>
    </message>
    <message>
        <source>Another program keeps it locked.</source>
        <translation>Un autre programme le verrouille.</translation>
    </message>
    <message>
        <source>It tried to do what no document needs, and was shut out.</source>
        <translation>Il a tenté ce dont aucun document n’a besoin et a été écarté.</translation>
    </message>
    <message>
        <source>The computer is too busy: no worker could be started.</source>
        <translation>L’ordinateur est trop occupé : aucun processus n’a pu démarrer.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autres</translation>
    </message>
    <message>
        <source>It cannot be written anew without loss.</source>
        <translation>Il ne peut pas être réécrit sans perte.</translation>
    </message>
    <message>
        <source>It has no page of this number.</source>
        <translation>Il n’a pas de page portant ce numéro.</translation>
    </message>
    <message>
        <source>The change was refused while it was made; it is as it was.</source>
        <translation>La modification a été refusée&#xa0;; il est tel qu’il était.</translation>
    </message>
    <message>
        <source>It was not changed in place, so there is nothing to undo.</source>
        <translation>Il n’a pas été modifié sur place, il n’y a donc rien à annuler.</translation>
    </message>
    <message>
        <source>The report does not tell what stood there before, so it stays.</source>
        <translation>Le rapport ne dit pas ce qui s’y trouvait avant, il reste donc tel quel.</translation>
    </message>
    <message>
        <source>The report says what no run can have done, so it stays.</source>
        <translation>Le rapport dit ce qu’aucune exécution n’a pu faire, il reste donc tel quel.</translation>
    </message>
    <message>
        <source>The report tells of no change of it, so it stays.</source>
        <translation>Le rapport ne parle d’aucune modification de ce document, il reste donc tel quel.</translation>
    </message>
    <message>
        <source>A mistake of this program. Please report it.</source>
        <translation>Une erreur de ce programme. Veuillez la signaler.</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>modifiés depuis</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>disque plein</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>will change</source>
        <translation>sera modifié</translation>
    </message>
    <message>
        <source>opens so already</source>
        <translation>s’ouvre déjà ainsi</translation>
    </message>
    <message>
        <source>cannot be changed</source>
        <translation>non modifiable</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>as it was</source>
        <translation>tel quel</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>not done</source>
        <translation>non fait</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>left alone</source>
        <translation>laissé tel quel</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
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
        <translation>%1, devenu %2</translation>
    </message>
    <message>
        <source>%1, will be %2</source>
        <translation>%1, deviendra %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>&#xa0;; </translation>
    </message>
    <message>
        <source>result written</source>
        <translation>résultat écrit</translation>
    </message>
    <message>
        <source>copied as it was</source>
        <translation>copié tel quel</translation>
    </message>
    <message>
        <source>%1, in the result %2</source>
        <translation>%1, dans le résultat %2</translation>
    </message>
</context>
<context>
    <name>RunOrder</name>
    <message>
        <source>Write to</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>The documents themselves lie in this folder. Choose another one, or write to the documents themselves.</source>
        <translation>Les documents eux-mêmes se trouvent dans ce dossier. Choisissez-en un autre, ou écrivez dans les documents eux-mêmes.</translation>
    </message>
</context>
<context>
    <name>SceneDrawing</name>
    <message>
        <source>no bookmarks</source>
        <translation>pas de signets</translation>
    </message>
</context>
<context>
    <name>SelectionSummary</name>
    <message>
        <source>others</source>
        <translation>autres</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>actuellement %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>different: %1</source>
        <translation>différents&#xa0;: %1</translation>
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
        <translation>Un traitement est en cours d’annulation. Arrêter l’annulation&#xa0;?</translation>
    </message>
    <message>
        <source>A run is under way. Stop it?</source>
        <translation>Un traitement est en cours. L’arrêter&#xa0;?</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as the run left them, and the run can be undone later.</source>
        <translation>Les documents en cours sont terminés&#xa0;; les autres restent tels que le traitement les a laissés, et il pourra être annulé plus tard.</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as they are.</source>
        <translation>Les documents en cours sont terminés&#xa0;; les autres restent tels quels.</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>Panel</source>
        <translation>Volet</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens: nothing, its bookmarks, small pictures of its pages, its layers or its attachments. Full screen shows the page alone, as in a presentation. Bookmarks are widely followed, full screen only after the viewer has asked.</source>
        <translation>Ce qui se trouve à côté de la page quand le document s’ouvre&#xa0;: rien, ses signets, de petites images de ses pages, ses calques ou ses pièces jointes. Le plein écran montre la page seule, comme dans une présentation. Les signets sont largement suivis, le plein écran seulement une fois que la visionneuse a demandé.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>How the pages are set out. In columns they follow each other while scrolling; single pages and pairs are turned. Simple viewers know fewer layouts or keep the one used last.</source>
        <translation>Comment les pages sont disposées. En colonnes, elles se suivent au défilement&#xa0;; les pages seules et les paires se tournent. Les visionneuses simples connaissent moins de dispositions ou gardent la dernière utilisée.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>The page that is shown first. It counts the sheets from the beginning, whatever numbers are printed on them. Widely followed, but many viewers return to where the reader stopped last.</source>
        <translation>La page affichée en premier. On compte les feuilles depuis le début, quels que soient les numéros imprimés. Largement suivi, mais bien des visionneuses reviennent là où la lecture s’est arrêtée.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown. Fitting the page or its width and percentages are widely followed; fitting the height or what is visible is rarer.</source>
        <translation>La taille à laquelle la première page s’affiche. La page entière, la pleine largeur et les pourcentages sont largement suivis&#xa0;; la hauteur et le contenu visible plus rarement.</translation>
    </message>
    <message>
        <source>Tool bars</source>
        <translation>Barres d’outils</translation>
    </message>
    <message>
        <source>Whether the viewer hides its tool bars. Viewers in web browsers ignore this.</source>
        <translation>Si la visionneuse masque ses barres d’outils. Les visionneuses des navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barre de menus</translation>
    </message>
    <message>
        <source>Whether the viewer hides its menu bar. Readers then need the keyboard. Viewers in web browsers ignore this.</source>
        <translation>Si la visionneuse masque sa barre de menus. Les lecteurs ont alors besoin du clavier. Les visionneuses des navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Whether the viewer hides scroll bars and other controls. Viewers in web browsers ignore this.</source>
        <translation>Si la visionneuse masque les barres de défilement et autres commandes. Les visionneuses des navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Taille de fenêtre</translation>
    </message>
    <message>
        <source>Whether the window takes the size of the first page. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Si la fenêtre prend la taille de la première page. Les visionneuses des navigateurs et celles à onglets l’ignorent.</translation>
    </message>
    <message>
        <source>Window place</source>
        <translation>Place de fenêtre</translation>
    </message>
    <message>
        <source>Whether the window stands in the middle of the screen. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Si la fenêtre se place au milieu de l’écran. Les visionneuses des navigateurs et celles à onglets l’ignorent.</translation>
    </message>
    <message>
        <source>Title bar</source>
        <translation>Barre de titre</translation>
    </message>
    <message>
        <source>What the title bar of the viewer says: the name of the file, or the document&apos;s own title. Accessibility rules ask for the title.</source>
        <translation>Ce que dit la barre de titre de la visionneuse&#xa0;: le nom du fichier ou le titre propre du document. Les règles d’accessibilité demandent le titre.</translation>
    </message>
    <message>
        <source>After full screen</source>
        <translation>Après plein écran</translation>
    </message>
    <message>
        <source>The panel that shows once full screen is left.</source>
        <translation>Le volet qui s’affiche une fois le plein écran quitté.</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>Sens de lecture</translation>
    </message>
    <message>
        <source>Which page of a pair stands on the left. It does not change the text.</source>
        <translation>Laquelle des pages d’une paire est à gauche. Le texte n’en est pas changé.</translation>
    </message>
    <message>
        <source>Print scaling</source>
        <translation>Mise à l’échelle</translation>
    </message>
    <message>
        <source>How the print dialog scales pages at first. Forms and labels want none.</source>
        <translation>Comment la boîte d’impression met d’abord les pages à l’échelle. Les formulaires et les étiquettes n’en veulent aucune.</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>How the print dialog uses the two sides of the paper at first.</source>
        <translation>Comment la boîte d’impression utilise d’abord les deux faces du papier.</translation>
    </message>
    <message>
        <source>Paper tray</source>
        <translation>Bac à papier</translation>
    </message>
    <message>
        <source>Whether the size of the page selects the paper tray.</source>
        <translation>Si la taille de la page choisit le bac à papier.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>The number of copies that the print dialog proposes.</source>
        <translation>Le nombre de copies que propose la boîte d’impression.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The document&apos;s title, as its properties and the title bar show it.</source>
        <translation>Le titre du document, tel que l’affichent ses propriétés et la barre de titre.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The document&apos;s language, for example en-GB. Screen readers choose the voice by it.</source>
        <translation>La langue du document, par exemple fr-FR. Les lecteurs d’écran choisissent la voix d’après elle.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Signets</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Pièces jointes</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Single page</source>
        <translation>Une seule page</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Une colonne</translation>
    </message>
    <message>
        <source>Two columns, odd left</source>
        <translation>Deux colonnes, impaires à gauche</translation>
    </message>
    <message>
        <source>Two columns, odd right</source>
        <translation>Deux colonnes, impaires à droite</translation>
    </message>
    <message>
        <source>Two pages, odd left</source>
        <translation>Deux pages, impaires à gauche</translation>
    </message>
    <message>
        <source>Two pages, odd right</source>
        <translation>Deux pages, impaires à droite</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affiché</translation>
    </message>
    <message>
        <source>As the first page</source>
        <translation>Comme la première page</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Comme elle était</translation>
    </message>
    <message>
        <source>Middle of the screen</source>
        <translation>Milieu de l’écran</translation>
    </message>
    <message>
        <source>Where it was</source>
        <translation>Où elle était</translation>
    </message>
    <message>
        <source>Document title</source>
        <translation>Titre du document</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De gauche à droite</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>No scaling</source>
        <translation>Aucune mise à l’échelle</translation>
    </message>
    <message>
        <source>As the viewer likes</source>
        <translation>Au gré de la visionneuse</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Recto seul</translation>
    </message>
    <message>
        <source>Two sides, long edge</source>
        <translation>Recto verso, bord long</translation>
    </message>
    <message>
        <source>Two sides, short edge</source>
        <translation>Recto verso, bord court</translation>
    </message>
    <message>
        <source>By the page size</source>
        <translation>D’après la taille de page</translation>
    </message>
    <message>
        <source>As the printer likes</source>
        <translation>Au gré de l’imprimante</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Pleine largeur</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Pleine hauteur</translation>
    </message>
    <message>
        <source>Fit visible</source>
        <translation>Contenu visible</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>A magnification, %1 is the number.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernière</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>D’après le nom du fichier</translation>
    </message>
    <message>
        <source>Runs a script</source>
        <translation>Exécute un script</translation>
    </message>
    <message>
        <source>Opens a web page</source>
        <translation>Ouvre une page web</translation>
    </message>
    <message>
        <source>Other action (%1)</source>
        <extracomment>%1 is the kind of an action as the document names it, such as Launch.</extracomment>
        <translation>Autre action (%1)</translation>
    </message>
</context>
<context>
    <name>host::desktop::ActionTable</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>Do&amp;cument</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modification</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Traitement</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Ajouter des &amp;fichiers…</translation>
    </message>
    <message>
        <source>Adds documents to the list</source>
        <translation>Ajoute des documents à la liste</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ajouter un &amp;dossier…</translation>
    </message>
    <message>
        <source>Adds the documents of a folder and of those below it</source>
        <translation>Ajoute les documents d’un dossier et de ses sous-dossiers</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>&amp;Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Conserve dans un fichier ce qu’est devenu chaque document</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Closes the window; list and change are there again the next time</source>
        <translation>Ferme la fenêtre&#xa0;; la liste et la modification seront là la prochaine fois</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Paste Documents</source>
        <translation>&amp;Coller des documents</translation>
    </message>
    <message>
        <source>Adds the files, folders and paths that were copied elsewhere</source>
        <translation>Ajoute les fichiers, dossiers et chemins copiés ailleurs</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>Ret&amp;irer de la liste</translation>
    </message>
    <message>
        <source>Takes the selected documents out of the list; the files stay</source>
        <translation>Retire de la liste les documents sélectionnés&#xa0;; les fichiers restent</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Selects all documents that are shown</source>
        <translation>Sélectionne tous les documents affichés</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>Shows the documents that have certain words</source>
        <translation>Affiche les documents qui contiennent certains mots</translation>
    </message>
    <message>
        <source>&amp;Open in Viewer</source>
        <translation>&amp;Ouvrir dans la visionneuse</translation>
    </message>
    <message>
        <source>Opens the current document</source>
        <translation>Ouvre le document courant</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Afficher dans le &amp;dossier</translation>
    </message>
    <message>
        <source>Shows the current document in the file manager</source>
        <translation>Montre le document courant dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation>&amp;Copier les chemins</translation>
    </message>
    <message>
        <source>Copies the paths of the selected documents</source>
        <translation>Copie les chemins des documents sélectionnés</translation>
    </message>
    <message>
        <source>Give &amp;Password…</source>
        <translation>Saisir le mot de &amp;passe…</translation>
    </message>
    <message>
        <source>Tries a password on all documents that want one</source>
        <translation>Essaie un mot de passe sur tous les documents qui en demandent un</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>&amp;Like This Document</source>
        <translation>&amp;Comme ce document</translation>
    </message>
    <message>
        <source>Makes documents open as the current one does</source>
        <translation>Fait s’ouvrir les documents comme le document courant</translation>
    </message>
    <message>
        <source>C&amp;onfigure the Action…</source>
        <translation>Configurer l’&amp;action…</translation>
    </message>
    <message>
        <source>Makes the settings in the action&apos;s own window</source>
        <translation>Fait les réglages dans la fenêtre propre à l’action</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Enregistrer comme préréglage…</translation>
    </message>
    <message>
        <source>Keeps the change under a name</source>
        <translation>Garde la modification sous un nom</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>&amp;Tout conserver</translation>
    </message>
    <message>
        <source>Sets nothing</source>
        <translation>Ne définit rien</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>Copier comme co&amp;mmande</translation>
    </message>
    <message>
        <source>Copies the command line that does the same</source>
        <translation>Copie la ligne de commande qui fait la même chose</translation>
    </message>
    <message>
        <source>&amp;Start…</source>
        <translation>&amp;Lancer…</translation>
    </message>
    <message>
        <source>Says what will be done to how many documents, and asks</source>
        <translation>Dit ce qui sera fait à combien de documents, et demande confirmation</translation>
    </message>
    <message>
        <source>&amp;Pause or Go On</source>
        <translation>&amp;Suspendre ou reprendre</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>Ne commence plus de document jusqu’à la reprise</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Termine les documents en cours et n’en commence plus</translation>
    </message>
    <message>
        <source>Try Failed &amp;Again</source>
        <translation>R&amp;éessayer les échecs</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Reprend ce qui a échoué ou n’a pas été fait</translation>
    </message>
    <message>
        <source>&amp;Undo Last Run…</source>
        <translation>&amp;Annuler le dernier traitement…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Rend chaque document tel qu’il était avant le traitement</translation>
    </message>
    <message>
        <source>Earlier &amp;Runs…</source>
        <translation>&amp;Traitements précédents…</translation>
    </message>
    <message>
        <source>Tells of the runs that can be undone</source>
        <translation>Présente les traitements qui peuvent être annulés</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Shows how the current document opens, before and after</source>
        <translation>Montre comment s’ouvre le document courant, avant et après</translation>
    </message>
    <message>
        <source>&amp;Next Part of the Window</source>
        <translation>Partie &amp;suivante de la fenêtre</translation>
    </message>
    <message>
        <source>Goes from the list to the change and on</source>
        <translation>Va de la liste à la modification, et ainsi de suite</translation>
    </message>
    <message>
        <source>P&amp;revious Part of the Window</source>
        <translation>Partie &amp;précédente de la fenêtre</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>Revient en arrière</translation>
    </message>
    <message>
        <source>&amp;Settings and Viewers</source>
        <translation>&amp;Réglages et visionneuses</translation>
    </message>
    <message>
        <source>Explains each setting and which viewers follow it</source>
        <translation>Explique chaque réglage et quelles visionneuses le suivent</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>Ra&amp;ccourcis clavier</translation>
    </message>
    <message>
        <source>Lists all keys</source>
        <translation>Énumère tous les raccourcis</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>&amp;Qu’est-ce que c’est&#xa0;?</translation>
    </message>
    <message>
        <source>Explains what is clicked next</source>
        <translation>Explique ce sur quoi on clique ensuite</translation>
    </message>
    <message>
        <source>&amp;About Quintar</source>
        <translation>À &amp;propos de Quintar</translation>
    </message>
    <message>
        <source>Names the version</source>
        <translation>Donne la version</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>Chooses what the list tells of each document</source>
        <translation>Choisit ce que la liste dit de chaque document</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>Chooses in which order the documents stand</source>
        <translation>Choisit l’ordre des documents</translation>
    </message>
    <message>
        <source>Move Column &amp;Left</source>
        <translation>Déplacer la colonne à &amp;gauche</translation>
    </message>
    <message>
        <source>Moves the column that the keyboard is in</source>
        <translation>Déplace la colonne où se trouve le clavier</translation>
    </message>
    <message>
        <source>Move Column Ri&amp;ght</source>
        <translation>Déplacer la colonne à &amp;droite</translation>
    </message>
    <message>
        <source>Takes back what was last added, removed or set</source>
        <translation>Annule le dernier ajout, retrait ou réglage</translation>
    </message>
    <message>
        <source>Does once more what was taken back</source>
        <translation>Refait ce qui a été annulé</translation>
    </message>
    <message>
        <source>Sho&amp;w Results</source>
        <translation>&amp;Voir les résultats</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Ouvre le dossier dans lequel le traitement a écrit</translation>
    </message>
    <message>
        <source>Reads the documents that are shown once more</source>
        <translation>Relit les documents affichés</translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message>
        <source>Show Them</source>
        <translation>Les afficher</translation>
    </message>
    <message>
        <source>Show them: %1</source>
        <translation>Les afficher&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>Tout conser&amp;ver</translation>
    </message>
    <message>
        <source>Cha&amp;nge for</source>
        <translation>P&amp;our</translation>
    </message>
    <message>
        <source>Change for</source>
        <translation>Pour</translation>
    </message>
    <message>
        <source>A change is for all documents that are shown, or for those that are selected. Documents that the search or the filter hides stay as they are.</source>
        <translation>Une modification vaut pour tous les documents affichés ou pour ceux qui sont sélectionnés. Les documents que la recherche ou le filtre masquent restent tels quels.</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>Changes under a name: views that you keep, and the action lists and favourites of the action “Initial View”.</source>
        <translation>Des modifications nommées&#xa0;: les vues que vous gardez, et les listes d’actions et favoris de l’action «&#xa0;Initial View&#xa0;».</translation>
    </message>
    <message>
        <source>Title and language</source>
        <translation>Titre et langue</translation>
    </message>
    <message>
        <source>Viewer&apos;s window</source>
        <translation>Fenêtre de la visionneuse</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>C&amp;onfigure…</source>
        <translation>Confi&amp;gurer…</translation>
    </message>
    <message numerus="yes">
        <source>all %Ln document(s)</source>
        <translation>
            <numerusform>le %Ln document</numerusform>
            <numerusform>les %Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %Ln shown</source>
        <translation>
            <numerusform>le %Ln affiché</numerusform>
            <numerusform>les %Ln affichés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %Ln selected</source>
        <translation>
            <numerusform>le %Ln sélectionné</numerusform>
            <numerusform>les %Ln sélectionnés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChildRun</name>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 n’a pas pu être lancé&#xa0;: %2</translation>
    </message>
    <message>
        <source>the program said more than can be understood</source>
        <translation>le programme en a dit plus qu’on ne peut comprendre</translation>
    </message>
    <message>
        <source>%1 crashed</source>
        <translation>%1 a planté</translation>
    </message>
    <message>
        <source>%1 ended too early, with exit status %2</source>
        <translation>%1 s’est terminé trop tôt, avec le code de sortie %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::ColumnMenus</name>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Croissant</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Décroissant</translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message>
        <source>Add Files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>The clipboard holds no files, folders or paths.</source>
        <translation>Le presse-papiers ne contient ni fichiers, ni dossiers, ni chemins.</translation>
    </message>
    <message>
        <source>Folder for the Results</source>
        <translation>Dossier des résultats</translation>
    </message>
    <message>
        <source>Undo this run?</source>
        <translation>Annuler ce traitement&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>Give %Ln document(s) back as they were?</source>
        <translation>
            <numerusform>Rendre %Ln document tel qu’il était&#xa0;?</numerusform>
            <numerusform>Rendre %Ln documents tels qu’ils étaient&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents that have been changed since by something else are left alone.</source>
        <translation>Les documents modifiés depuis par autre chose sont laissés tels quels.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler le traitement</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>report.tsv</source>
        <translation>rapport.tsv</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>The report is in %1.</source>
        <translation>Le rapport est dans %1.</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Le rapport n’a pas pu être écrit dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>About Quintar</source>
        <translation>À propos de Quintar</translation>
    </message>
    <message>
        <source>Quintar %1</source>
        <translation>Quintar %1</translation>
    </message>
    <message>
        <source>Says how PDF documents open. It adds to a document and never takes away: every run in place can be undone.</source>
        <translation>Définit comment s’ouvrent les documents PDF. Il ajoute à un document et n’enlève jamais rien&#xa0;: tout traitement sur place peut être annulé.</translation>
    </message>
    <message>
        <source>No viewer took %1.</source>
        <translation>Aucune visionneuse n’a pris %1.</translation>
    </message>
    <message>
        <source>No file manager took %1.</source>
        <translation>Aucun gestionnaire de fichiers n’a pris %1.</translation>
    </message>
    <message>
        <source>The command is in the clipboard.</source>
        <translation>La commande est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The change makes documents open as %1 does.</source>
        <translation>La modification fait s’ouvrir les documents comme %1.</translation>
    </message>
    <message>
        <source>The password is tried on all documents that want one. It is kept until this window is closed.</source>
        <translation>Le mot de passe est essayé sur tous les documents qui en demandent un. Il est gardé jusqu’à la fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>The command is in the clipboard. It waits for the password to be typed.</source>
        <translation>La commande est dans le presse-papiers. Elle attend que le mot de passe soit saisi.</translation>
    </message>
    <message>
        <source>No document would be changed.</source>
        <translation>Aucun document ne serait modifié.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again to try once more.</source>
        <translation>On ne sait pas ce qui changerait. Relisez les documents pour réessayer.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>host::desktop::DestinationRow</name>
    <message>
        <source>The documents themselves</source>
        <translation>Dans les documents eux-mêmes</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>Dans un dossier</translation>
    </message>
    <message>
        <source>Beside them, under another name</source>
        <translation>À côté, sous un autre nom</translation>
    </message>
    <message>
        <source>Write to</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>A run changes the documents themselves, which can be undone, or leaves them as they are and writes its results into a folder or beside them.</source>
        <translation>Un traitement modifie les documents eux-mêmes, ce qui peut être annulé, ou les laisse tels quels et écrit ses résultats dans un dossier ou à côté d’eux.</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Dossier des résultats</translation>
    </message>
    <message>
        <source>Choose the folder for the results</source>
        <translation>Choisir le dossier des résultats</translation>
    </message>
    <message>
        <source>Added to the names</source>
        <translation>Ajouté aux noms</translation>
    </message>
    <message>
        <source>The run can be undone.</source>
        <translation>Le traitement peut être annulé.</translation>
    </message>
    <message>
        <source>The documents stay as they are.</source>
        <translation>Les documents restent tels quels.</translation>
    </message>
    <message>
        <source>manual.pdf becomes manual-%1.pdf.</source>
        <translation>manuel.pdf devient manuel-%1.pdf.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>&amp;Écrire</translation>
    </message>
</context>
<context>
    <name>host::desktop::DetailLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1&#xa0;: %2. %3</translation>
    </message>
    <message>
        <source>About the current document</source>
        <translation>À propos du document courant</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Sélectionnez un document pour voir comment il s’ouvre.</translation>
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
        <translation>Documents</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rétablir le retrait de %Ln document</numerusform>
            <numerusform>&amp;Rétablir le retrait de %Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Annuler le retrait de %Ln document</numerusform>
            <numerusform>&amp;Annuler le retrait de %Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rétablir l’ajout de %Ln document</numerusform>
            <numerusform>&amp;Rétablir l’ajout de %Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Annuler l’ajout de %Ln document</numerusform>
            <numerusform>&amp;Annuler l’ajout de %Ln documents</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Redo Changing the Settings</source>
        <translation>&amp;Rétablir la modification des réglages</translation>
    </message>
    <message>
        <source>&amp;Undo Changing the Settings</source>
        <translation>&amp;Annuler la modification des réglages</translation>
    </message>
    <message>
        <source>&amp;Redo Setting “%1”</source>
        <translation>&amp;Rétablir le réglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Undo Setting “%1”</source>
        <translation>&amp;Annuler le réglage «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>host::desktop::EmptyPage</name>
    <message>
        <source>Say how PDF documents open</source>
        <translation>Dites comment s’ouvrent les documents PDF</translation>
    </message>
    <message>
        <source>With their bookmarks, with their title, at page 1.
Drop documents or folders here. Nothing is changed before you start it.</source>
        <translation>Avec leurs signets, avec leur titre, à la page 1.
Déposez ici des documents ou des dossiers. Rien n’est modifié avant que vous ne le lanciez.</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Ajouter des fic&amp;hiers…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Ajouter un d&amp;ossier…</translation>
    </message>
    <message>
        <source>A document that opens with its bookmarks and its title</source>
        <translation>Un document qui s’ouvre avec ses signets et son titre</translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message>
        <source>&amp;Show:</source>
        <translation>Affic&amp;her&#xa0;:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search name, folder, title</source>
        <translation>Rechercher nom, dossier, titre</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s)</source>
        <translation>
            <numerusform>%Ln document</numerusform>
            <numerusform>%Ln documents</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 sur %2 affichés</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Shows all documents again (Esc)</source>
        <translation>Affiche à nouveau tous les documents (Échap)</translation>
    </message>
</context>
<context>
    <name>host::desktop::HelpWindow</name>
    <message>
        <source>Help - Quintar</source>
        <translation>Aide – Quintar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>host::desktop::HistoryDialog</name>
    <message>
        <source>Earlier Runs</source>
        <translation>Traitements précédents</translation>
    </message>
    <message>
        <source>Undoing gives each document back as it was before the run. Documents that something else has changed since are left alone.</source>
        <translation>Annuler rend chaque document tel qu’il était avant le traitement. Les documents que quelque chose d’autre a modifiés depuis sont laissés tels quels.</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>A&amp;nnuler ce traitement…</translation>
    </message>
    <message>
        <source>Earlier runs</source>
        <translation>Traitements précédents</translation>
    </message>
</context>
<context>
    <name>host::desktop::Logout</name>
    <message>
        <source>&amp;Stop and Log Out</source>
        <translation>&amp;Arrêter et fermer la session</translation>
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
            <numerusform>%Ln document – Quintar</numerusform>
            <numerusform>%Ln documents – Quintar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 % - Quintar</source>
        <translation>%1&#xa0;% – Quintar</translation>
    </message>
    <message>
        <source>&amp;Stop and Close</source>
        <translation>&amp;Arrêter et fermer</translation>
    </message>
    <message>
        <source>What was dropped are no files or folders.</source>
        <translation>Ce qui a été déposé n’est ni fichiers ni dossiers.</translation>
    </message>
</context>
<context>
    <name>host::desktop::PresetMenu</name>
    <message>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
    <message>
        <source>Action Lists</source>
        <translation>Listes d’actions</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Nothing is kept yet</source>
        <translation>Rien n’est encore gardé</translation>
    </message>
    <message>
        <source>&amp;Remove Preset</source>
        <translation>Supp&amp;rimer un préréglage</translation>
    </message>
    <message>
        <source>Remove the preset “%1”?</source>
        <translation>Supprimer le préréglage «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>The change is kept as “%1”.</source>
        <translation>La modification est gardée sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>Remplacer le préréglage «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>There is one of this name already.</source>
        <translation>Il en existe déjà un de ce nom.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
</context>
<context>
    <name>host::desktop::PreviewPane</name>
    <message>
        <source>full screen</source>
        <translation>plein écran</translation>
    </message>
    <message>
        <source>bookmarks panel</source>
        <translation>volet des signets</translation>
    </message>
    <message>
        <source>pages panel</source>
        <translation>volet des pages</translation>
    </message>
    <message>
        <source>layers panel</source>
        <translation>volet des calques</translation>
    </message>
    <message>
        <source>attachments panel</source>
        <translation>volet des pièces jointes</translation>
    </message>
    <message>
        <source>no panel</source>
        <translation>sans volet</translation>
    </message>
    <message>
        <source>title bar “%1”, %2, page %3 of %4</source>
        <translation>barre de titre «&#xa0;%1&#xa0;», %2, page %3 sur %4</translation>
    </message>
    <message>
        <source>Many viewers ask before full screen; browsers ignore it.</source>
        <translation>Bien des visionneuses demandent avant le plein écran&#xa0;; les navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>Full-featured viewers do this; browsers ignore bars and windows.</source>
        <translation>Les visionneuses complètes le font&#xa0;; les navigateurs ignorent barres et fenêtres.</translation>
    </message>
    <message>
        <source>Viewers that have this panel show it.</source>
        <translation>Les visionneuses qui ont ce volet l’affichent.</translation>
    </message>
    <message>
        <source>Full-featured viewers and Firefox follow the layout; others keep their own.</source>
        <translation>Les visionneuses complètes et Firefox suivent la disposition&#xa0;; les autres gardent la leur.</translation>
    </message>
    <message>
        <source>Most desktop viewers do this; browsers follow page and zoom.</source>
        <translation>La plupart des visionneuses de bureau le font&#xa0;; les navigateurs suivent la page et le zoom.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>A drawing of the first moment of the current document, as it opens now and as it will. Each viewer decides for itself what of this it does.</source>
        <translation>Un dessin du premier instant du document courant, tel qu’il s’ouvre maintenant et tel qu’il s’ouvrira. Chaque visionneuse décide elle-même de ce qu’elle en fait.</translation>
    </message>
    <message>
        <source>Opens with %1.</source>
        <translation>S’ouvre avec %1.</translation>
    </message>
    <message>
        <source>Before: %1. After: %2. %3</source>
        <translation>Avant&#xa0;: %1. Après&#xa0;: %2. %3</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Sélectionnez un document pour voir comment il s’ouvre.</translation>
    </message>
    <message>
        <source>Opens like this</source>
        <translation>S’ouvre ainsi</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>host::desktop::Reading</name>
    <message>
        <source>it cannot be read</source>
        <translation>il ne peut pas être lu</translation>
    </message>
    <message>
        <source>not read: reading was stopped</source>
        <translation>non lu&#xa0;: la lecture a été arrêtée</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message>
        <source>Show Wh&amp;y</source>
        <translation>Vo&amp;ir pourquoi</translation>
    </message>
    <message>
        <source>Shows the documents that failed or cannot be changed</source>
        <translation>Affiche les documents en échec ou non modifiables</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>A&amp;nnuler ce traitement…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Rend chaque document tel qu’il était avant le traitement</translation>
    </message>
    <message>
        <source>Tr&amp;y Failed Again</source>
        <translation>Réessa&amp;yer les échecs</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Reprend ce qui a échoué ou n’a pas été fait</translation>
    </message>
    <message>
        <source>Save Repor&amp;t…</source>
        <translation>Enregi&amp;strer le rapport…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Conserve dans un fichier ce qu’est devenu chaque document</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>&amp;Suspendre</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>Ne commence plus de document jusqu’à la reprise</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Termine les documents en cours et n’en commence plus</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln Fa&amp;iled</source>
        <translation>
            <numerusform>Vo&amp;ir %Ln échec</numerusform>
            <numerusform>Vo&amp;ir %Ln échecs</numerusform>
        </translation>
    </message>
    <message>
        <source>Go &amp;On</source>
        <translation>Re&amp;prendre</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>La liste est vide.</translation>
    </message>
    <message numerus="yes">
        <source>Reading… %Ln document(s) so far</source>
        <translation>
            <numerusform>Lecture… %Ln document jusqu’ici</numerusform>
            <numerusform>Lecture… %Ln documents jusqu’ici</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change… %1</source>
        <translation>Recherche de ce qui changerait… %1</translation>
    </message>
    <message>
        <source>Changing… %1</source>
        <translation>Modification… %1</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>Suspendu à %1</translation>
    </message>
    <message>
        <source>Stopping… documents that are being worked on are finished</source>
        <translation>Arrêt… les documents en cours sont terminés</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Say on the right what is to change.</source>
        <translation>Dites à droite ce qui doit être modifié.</translation>
    </message>
    <message>
        <source>Nothing would change</source>
        <translation>Rien ne changerait</translation>
    </message>
    <message numerus="yes">
        <source>%Ln will change</source>
        <translation>
            <numerusform>%Ln sera modifié</numerusform>
            <numerusform>%Ln seront modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln open so already</source>
        <translation>
            <numerusform>%Ln s’ouvre déjà ainsi</numerusform>
            <numerusform>%Ln s’ouvrent déjà ainsi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be changed</source>
        <translation>
            <numerusform>%Ln non modifiable</numerusform>
            <numerusform>%Ln non modifiables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln modifié</numerusform>
            <numerusform>%Ln modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln as they were</source>
        <translation>
            <numerusform>%Ln tel quel</numerusform>
            <numerusform>%Ln tels quels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln échec</numerusform>
            <numerusform>%Ln échecs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not done</source>
        <translation>
            <numerusform>%Ln non fait</numerusform>
            <numerusform>%Ln non faits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>encore %Ln seconde environ</numerusform>
            <numerusform>encore %Ln secondes environ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>encore %Ln minute environ</numerusform>
            <numerusform>encore %Ln minutes environ</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A number of documents, and why they cannot be changed: &quot;4 signed&quot;</extracomment>
        <translation>%2&#xa0;: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undoing… %1</source>
        <translation>Annulation… %1</translation>
    </message>
    <message>
        <source>Show Res&amp;ults</source>
        <translation>Voir &amp;les résultats</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Ouvre le dossier dans lequel le traitement a écrit</translation>
    </message>
    <message>
        <source>No document is shown that the change could be for.</source>
        <translation>Aucun document affiché ne peut recevoir la modification.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again (F5) to find out.</source>
        <translation>On ne sait pas ce qui changerait. Relisez les documents (F5) pour le savoir.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln écrit</numerusform>
            <numerusform>%Ln écrits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln copied as they were</source>
        <translation>
            <numerusform>%Ln copié tel quel</numerusform>
            <numerusform>%Ln copiés tels quels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message>
        <source>The run could not be written down in %1: %2</source>
        <translation>Le traitement n’a pas pu être noté dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>A run that was broken off</source>
        <translation>Un traitement interrompu</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln modifié</numerusform>
            <numerusform>%Ln modifiés</numerusform>
        </translation>
    </message>
    <message>
        <source>undone</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>peut être annulé</translation>
    </message>
    <message>
        <source>documents are as they were</source>
        <translation>les documents sont tels qu’ils étaient</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Où</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>Combien</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulation</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln écrit</numerusform>
            <numerusform>%Ln écrits</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>rien à annuler</translation>
    </message>
    <message>
        <source>Broken off: %1</source>
        <translation>Interrompu : %1</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunMachine</name>
    <message>
        <source>Close the settings first.</source>
        <translation>Fermez d’abord les réglages.</translation>
    </message>
    <message>
        <source>Wait until the run has ended.</source>
        <translation>Attendez la fin du traitement.</translation>
    </message>
    <message>
        <source>Add documents first.</source>
        <translation>Ajoutez d’abord des documents.</translation>
    </message>
    <message>
        <source>Wait until all documents are read.</source>
        <translation>Attendez que tous les documents soient lus.</translation>
    </message>
    <message>
        <source>Wait until it is known what would change.</source>
        <translation>Attendez que l’on sache ce qui changerait.</translation>
    </message>
    <message>
        <source>Wait until the run is undone.</source>
        <translation>Attendez que le traitement soit annulé.</translation>
    </message>
    <message>
        <source>Say first what is to change.</source>
        <translation>Dites d’abord ce qui doit être modifié.</translation>
    </message>
    <message>
        <source>Nothing is under way.</source>
        <translation>Rien n’est en cours.</translation>
    </message>
    <message>
        <source>This run is done. Change something to start another one.</source>
        <translation>Ce traitement est terminé. Modifiez quelque chose pour en lancer un autre.</translation>
    </message>
</context>
<context>
    <name>host::desktop::Session</name>
    <message>
        <source>A list of an earlier session cannot be read, and is left as it is: %1</source>
        <translation>Une liste d’une session précédente est illisible et reste telle quelle&#xa0;: %1</translation>
    </message>
    <message>
        <source>List and change will not be there the next time: %1: %2</source>
        <translation>La liste et la modification ne seront plus là la prochaine fois&#xa0;: %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::SettingRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1, nombre</translation>
    </message>
    <message>
        <source>%1, text</source>
        <translation>%1, texte</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Première</translation>
    </message>
    <message>
        <source>Page…</source>
        <translation>Page…</translation>
    </message>
    <message>
        <source>Number…</source>
        <translation>Nombre…</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>D’après le nom du fichier</translation>
    </message>
    <message>
        <source>From the file name, where missing</source>
        <translation>D’après le nom du fichier, s’il manque</translation>
    </message>
    <message>
        <source>This text:</source>
        <translation>Ce texte&#xa0;:</translation>
    </message>
    <message>
        <source>Remove the setting</source>
        <translation>Supprimer le réglage</translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message>
        <source>Start</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Lancer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) will be changed in place.</source>
        <translation>
            <numerusform>%Ln document sera modifié sur place.</numerusform>
            <numerusform>%Ln documents seront modifiés sur place.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written to %1.</source>
        <translation>
            <numerusform>%Ln résultat sera écrit dans %1.</numerusform>
            <numerusform>%Ln résultats seront écrits dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>%Ln résultat sera écrit à côté du document, avec «&#xa0;-%1&#xa0;» ajouté à son nom.</numerusform>
            <numerusform>%Ln résultats seront écrits à côté des documents, avec «&#xa0;-%1&#xa0;» ajouté à leurs noms.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) there will be replaced.</source>
        <translation>
            <numerusform>%Ln fichier y sera remplacé.</numerusform>
            <numerusform>%Ln fichiers y seront remplacés.</numerusform>
        </translation>
    </message>
    <message>
        <source>What the run changes can be undone.</source>
        <translation>Ce que le traitement modifie peut être annulé.</translation>
    </message>
    <message>
        <source>The documents themselves stay as they are.</source>
        <translation>Les documents eux-mêmes restent tels quels.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%Ln document ne peut pas être modifié et reste tel quel.</numerusform>
            <numerusform>%Ln documents ne peuvent pas être modifiés et restent tels quels.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ToolBar</name>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>S&amp;tart…</source>
        <translation>&amp;Lancer…</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message>
        <source>What you added waits until this is done.</source>
        <translation>Ce que vous avez ajouté attend que ceci soit fini.</translation>
    </message>
    <message>
        <source>Reading broke off.</source>
        <translation>La lecture s’est interrompue.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were in the list already.</source>
        <translation>
            <numerusform>%Ln document était déjà dans la liste.</numerusform>
            <numerusform>%Ln documents étaient déjà dans la liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change broke off.</source>
        <translation>La recherche de ce qui changerait s’est interrompue.</translation>
    </message>
    <message>
        <source>Nothing is begun: the folder for reports cannot be made: %1</source>
        <translation>Rien n’est commencé&#xa0;: le dossier des rapports ne peut pas être créé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The run broke off.</source>
        <translation>Le traitement s’est interrompu.</translation>
    </message>
    <message>
        <source>Undoing broke off.</source>
        <translation>L’annulation s’est interrompue.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%Ln document est tel qu’il était avant le traitement.</numerusform>
            <numerusform>%Ln documents sont tels qu’ils étaient avant le traitement.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%Ln document a été laissé tel quel, car il n’est plus comme le traitement l’avait laissé.</numerusform>
            <numerusform>%Ln documents ont été laissés tels quels, car ils ne sont plus comme le traitement les avait laissés.</numerusform>
        </translation>
    </message>
    <message>
        <source>No document of the list wants a password.</source>
        <translation>Aucun document de la liste ne demande de mot de passe.</translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>L’annulation a été arrêtée : %Ln document est tel qu’il était avant le traitement.</numerusform>
            <numerusform>L’annulation a été arrêtée : %Ln documents sont tels qu’ils étaient avant le traitement.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading was stopped. What was not found until then is not in the list.</source>
        <translation>La lecture a été arrêtée. Ce qui n’avait pas encore été trouvé ne figure pas dans la liste.</translation>
    </message>
    <message>
        <source>No PDF document was found there.</source>
        <translation>Aucun document PDF n’y a été trouvé.</translation>
    </message>
</context>
</TS>
