<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ActionDialog</name>
    <message>
        <source>Settings of the action</source>
        <translation>Ajustes de la acción</translation>
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
            <numerusform>%Ln documento no tiene marcadores: el panel estará vacío.</numerusform>
            <numerusform>%Ln documentos no tienen marcadores: el panel estará vacío.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) have no title to show.</source>
        <translation>
            <numerusform>%Ln documento no tiene título que mostrar.</numerusform>
            <numerusform>%Ln documentos no tienen título que mostrar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %Ln page(s); it cannot open there.</source>
        <translation>
            <numerusform>El documento más corto tiene %Ln página; no puede abrirse ahí.</numerusform>
            <numerusform>El documento más corto tiene %Ln páginas; no puede abrirse ahí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%Ln documento está firmado y queda como está, salvo que indique lo contrario.</numerusform>
            <numerusform>%Ln documentos están firmados y quedan como están, salvo que indique lo contrario.</numerusform>
        </translation>
    </message>
    <message>
        <source>Full screen: many viewers ask first, and browsers ignore it.</source>
        <translation>Pantalla completa: muchos visores preguntan antes y los navegadores no la siguen.</translation>
    </message>
    <message>
        <source>Browsers ignore what is said about windows and bars.</source>
        <translation>Los navegadores no siguen lo que se dice de ventanas y barras.</translation>
    </message>
    <message>
        <source>Without the menu bar, readers need the keyboard.</source>
        <translation>Sin la barra de menús, los lectores necesitan el teclado.</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>The name of the file. The sign before it says what a run would do or did.</source>
        <translation>El nombre del archivo. El signo que lo precede dice qué haría o hizo una ejecución.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Where the document lies.</source>
        <translation>Dónde está el documento.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>The document&apos;s own title, from its properties.</source>
        <translation>El título propio del documento, según sus propiedades.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>How many pages the document has.</source>
        <translation>Cuántas páginas tiene el documento.</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>How many bookmarks the document has.</source>
        <translation>Cuántos marcadores tiene el documento.</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens.</source>
        <translation>Lo que hay junto a la página cuando se abre el documento.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>How the pages are set out.</source>
        <translation>Cómo se disponen las páginas.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The page that is shown first.</source>
        <translation>La página que se muestra primero.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown.</source>
        <translation>A qué tamaño se muestra la primera página.</translation>
    </message>
    <message>
        <source>Title Bar</source>
        <translation>Barra de título</translation>
    </message>
    <message>
        <source>Whether the title bar of the viewer says the title or the name of the file.</source>
        <translation>Si la barra de título del visor dice el título o el nombre del archivo.</translation>
    </message>
    <message>
        <source>Window Options</source>
        <translation>Opciones de ventana</translation>
    </message>
    <message>
        <source>What else the document asks for: hidden bars, the size and place of the window, printing.</source>
        <translation>Qué más pide el documento: barras ocultas, tamaño y lugar de la ventana, impresión.</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Firmado</translation>
    </message>
    <message>
        <source>Viewers report any change of a signed document.</source>
        <translation>Los visores avisan de cualquier cambio en un documento firmado.</translation>
    </message>
    <message>
        <source>Certified</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>A certified document says what may be done to it.</source>
        <translation>Un documento certificado dice qué se puede hacer con él.</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>An encrypted document may need a password to be read or changed.</source>
        <translation>Un documento cifrado puede necesitar una contraseña para leerlo o cambiarlo.</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>What a run would do to the document, or did, and why not.</source>
        <translation>Qué haría una ejecución con el documento, o qué hizo, y por qué no.</translation>
    </message>
</context>
<context>
    <name>Destination</name>
    <message>
        <source>Choose the folder for the results.</source>
        <translation>Elija la carpeta de los resultados.</translation>
    </message>
    <message>
        <source>Say what is added to the names.</source>
        <translation>Indique qué se añade a los nombres.</translation>
    </message>
    <message>
        <source>What is added to the names cannot hold a slash.</source>
        <translation>Lo que se añade a los nombres no puede contener una barra.</translation>
    </message>
    <message>
        <source>in place</source>
        <translation>en los propios documentos</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>beside them, as name-%1.pdf</source>
        <translation>al lado, como nombre-%1.pdf</translation>
    </message>
    <message>
        <source>The folder has to begin with a slash or with ~/.</source>
        <translation>La carpeta debe empezar por una barra o por ~/.</translation>
    </message>
    <message>
        <source>Leave out the hyphen and .pdf: they are added anyway.</source>
        <translation>Omita el guion y .pdf: se añaden de todos modos.</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>Documentos PDF (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
</context>
<context>
    <name>DocumentFilter</name>
    <message>
        <source>All documents</source>
        <translation>Todos los documentos</translation>
    </message>
    <message>
        <source>Do not show their title</source>
        <translation>No muestran su título</translation>
    </message>
    <message>
        <source>Have no title</source>
        <translation>No tienen título</translation>
    </message>
    <message>
        <source>Have bookmarks but do not show them</source>
        <translation>Tienen marcadores pero no los muestran</translation>
    </message>
    <message>
        <source>Have no bookmarks</source>
        <translation>No tienen marcadores</translation>
    </message>
    <message>
        <source>Open at a page of their own</source>
        <translation>Se abren en una página propia</translation>
    </message>
    <message>
        <source>Will change</source>
        <translation>Cambiarán</translation>
    </message>
    <message>
        <source>Failed or cannot be changed</source>
        <translation>Fallidos o no modificables</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>Firmados</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Cifrados</translation>
    </message>
    <message>
        <source>Have a title but do not show it</source>
        <translation>Tienen título pero no lo muestran</translation>
    </message>
    <message>
        <source>Failed in the run</source>
        <translation>Fallidos en la ejecución</translation>
    </message>
    <message>
        <source>Were changed or written</source>
        <translation>Se han cambiado o escrito</translation>
    </message>
</context>
<context>
    <name>EventReader</name>
    <message>
        <source>the program and the window are of different versions</source>
        <translation>el programa y la ventana son de versiones distintas</translation>
    </message>
    <message>
        <source>the program said something that is not understood</source>
        <translation>el programa dijo algo que no se entiende</translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %Ln document(s) that want one.</source>
        <translation>
            <numerusform>La contraseña no abre el %Ln documento que la pide.</numerusform>
            <numerusform>La contraseña no abre ninguno de los %Ln documentos que piden una.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %Ln document(s).</source>
        <translation>
            <numerusform>La contraseña abre %Ln documento.</numerusform>
            <numerusform>La contraseña abre %Ln documentos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) want another one.</source>
        <translation>
            <numerusform>%Ln documento pide otra.</numerusform>
            <numerusform>%Ln documentos piden otra.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The preset cannot be kept: %1</source>
        <translation>No se puede guardar el preajuste: %1</translation>
    </message>
    <message>
        <source>The preset cannot be removed: %1</source>
        <translation>No se puede eliminar el preajuste: %1</translation>
    </message>
</context>
<context>
    <name>ReasonTexts</name>
    <message>
        <source>Signed: viewers would report the change.</source>
        <translation>Firmado: los visores avisarían del cambio.</translation>
    </message>
    <message>
        <source>Certified: any change breaks the certification.</source>
        <translation>Certificado: cualquier cambio rompe la certificación.</translation>
    </message>
    <message>
        <source>A password is needed to open it.</source>
        <translation>Se necesita una contraseña para abrirlo.</translation>
    </message>
    <message>
        <source>Its owner does not allow changes without the owner&apos;s password.</source>
        <translation>Su propietario no permite cambios sin la contraseña del propietario.</translation>
    </message>
    <message>
        <source>It is encrypted in a way that cannot be read here.</source>
        <translation>Está cifrado de un modo que aquí no se puede leer.</translation>
    </message>
    <message>
        <source>Not a PDF document.</source>
        <translation>No es un documento PDF.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Too damaged to be read.</source>
        <translation>Demasiado dañado para leerlo.</translation>
    </message>
    <message>
        <source>Damaged, so it is in doubt what it holds; nothing is changed.</source>
        <translation>Dañado: es dudoso lo que contiene; no se cambia nada.</translation>
    </message>
    <message>
        <source>Damaged, so nothing can be added to it.</source>
        <translation>Dañado: no se le puede añadir nada.</translation>
    </message>
    <message>
        <source>Too complex to be read.</source>
        <translation>Demasiado complejo para leerlo.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>El archivo ya no está.</translation>
    </message>
    <message>
        <source>You may not read or change it here.</source>
        <translation>No tiene permiso para leerlo o cambiarlo aquí.</translation>
    </message>
    <message>
        <source>Not a file that can be read.</source>
        <translation>No es un archivo que se pueda leer.</translation>
    </message>
    <message>
        <source>The disk could not be read.</source>
        <translation>No se pudo leer el disco.</translation>
    </message>
    <message>
        <source>The result could not be written.</source>
        <translation>No se pudo escribir el resultado.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile.</source>
        <translation>Otro programa lo ha cambiado entretanto.</translation>
    </message>
    <message>
        <source>It has been changed since the run, so it stays.</source>
        <translation>Se ha cambiado después de la ejecución, así que queda como está.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>It lies where nothing may be written.</source>
        <translation>Está donde no se puede escribir nada.</translation>
    </message>
    <message>
        <source>It took too long and was given up.</source>
        <translation>Tardó demasiado y se abandonó.</translation>
    </message>
    <message>
        <source>It needs too much memory and was given up.</source>
        <translation>Necesita demasiada memoria y se abandonó.</translation>
    </message>
    <message>
        <source>Reading it crashed the reader; it is as it was.</source>
        <translation>Al leerlo falló el lector; está como estaba.</translation>
    </message>
    <message>
        <source>&amp;Give Password…</source>
        <translation>Intr&amp;oducir contraseña…</translation>
    </message>
    <message>
        <source>Append A&amp;ll the Same</source>
        <translation>Añadir de t&amp;odos modos</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Leer de nuev&amp;o</translation>
    </message>
    <message>
        <source>Show in Fo&amp;lder</source>
        <translation>M&amp;ostrar en la carpeta</translation>
    </message>
    <message>
        <source>signed</source>
        <translation>firmados</translation>
    </message>
    <message>
        <source>certified</source>
        <translation>certificados</translation>
    </message>
    <message>
        <source>password needed</source>
        <translation>con contraseña</translation>
    </message>
    <message>
        <source>encrypted</source>
        <translation>cifrados</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañados</translation>
    </message>
    <message>
        <source>out of reach</source>
        <translation>inaccesibles</translation>
    </message>
    <message>
        <source>unsafe to read</source>
        <translation>inseguros de leer</translation>
    </message>
    <message>
        <source>Its properties are damaged, so its title cannot be set.</source>
        <translation>Sus propiedades están dañadas; no se puede establecer el título.</translation>
    </message>
    <message>
        <source>It opens with an action that cannot be taken over.</source>
        <translation>Se abre con una acción que no se puede tomar.</translation>
    </message>
    <message>
        <source>It is larger than a limit allows.</source>
        <translation>Supera un límite de tamaño.</translation>
    </message>
    <message>
        <source>Another program keeps it locked.</source>
        <translation>Otro programa lo tiene bloqueado.</translation>
    </message>
    <message>
        <source>It tried to do what no document needs, and was shut out.</source>
        <translation>Intentó lo que ningún documento necesita y fue excluido.</translation>
    </message>
    <message>
        <source>The computer is too busy: no worker could be started.</source>
        <translation>El equipo está demasiado ocupado: no se pudo iniciar ningún proceso.</translation>
    </message>
    <message>
        <source>other</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>It cannot be written anew without loss.</source>
        <translation>No se puede escribir de nuevo sin pérdida.</translation>
    </message>
    <message>
        <source>It has no page of this number.</source>
        <translation>No tiene ninguna página con este número.</translation>
    </message>
    <message>
        <source>The change was refused while it was made; it is as it was.</source>
        <translation>El cambio fue rechazado; está como estaba.</translation>
    </message>
    <message>
        <source>It was not changed in place, so there is nothing to undo.</source>
        <translation>No se cambió en su sitio, así que no hay nada que deshacer.</translation>
    </message>
    <message>
        <source>The report does not tell what stood there before, so it stays.</source>
        <translation>El informe no dice qué había antes, así que se queda como está.</translation>
    </message>
    <message>
        <source>The report says what no run can have done, so it stays.</source>
        <translation>El informe dice algo que ninguna ejecución puede haber hecho, así que se queda como está.</translation>
    </message>
    <message>
        <source>The report tells of no change of it, so it stays.</source>
        <translation>El informe no habla de ningún cambio suyo, así que se queda como está.</translation>
    </message>
    <message>
        <source>A mistake of this program. Please report it.</source>
        <translation>Un error de este programa. Comuníquelo, por favor.</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>cambiados después</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>disco lleno</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>listo</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>will change</source>
        <translation>cambiará</translation>
    </message>
    <message>
        <source>opens so already</source>
        <translation>ya se abre así</translation>
    </message>
    <message>
        <source>cannot be changed</source>
        <translation>no se puede cambiar</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>as it was</source>
        <translation>como estaba</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>not done</source>
        <translation>sin hacer</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>deshecho</translation>
    </message>
    <message>
        <source>left alone</source>
        <translation>intacto</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>%1, pasó a %2</translation>
    </message>
    <message>
        <source>%1, will be %2</source>
        <translation>%1, será %2</translation>
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
        <translation>resultado escrito</translation>
    </message>
    <message>
        <source>copied as it was</source>
        <translation>copiado como estaba</translation>
    </message>
    <message>
        <source>%1, in the result %2</source>
        <translation>%1, en el resultado %2</translation>
    </message>
</context>
<context>
    <name>RunOrder</name>
    <message>
        <source>Write to</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>The documents themselves lie in this folder. Choose another one, or write to the documents themselves.</source>
        <translation>Los propios documentos están en esta carpeta. Elija otra o escriba en los propios documentos.</translation>
    </message>
</context>
<context>
    <name>SceneDrawing</name>
    <message>
        <source>no bookmarks</source>
        <translation>sin marcadores</translation>
    </message>
</context>
<context>
    <name>SelectionSummary</name>
    <message>
        <source>others</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>ahora %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>different: %1</source>
        <translation>distintos: %1</translation>
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
        <translation>Se está deshaciendo una ejecución. ¿Dejar de deshacerla?</translation>
    </message>
    <message>
        <source>A run is under way. Stop it?</source>
        <translation>Hay una ejecución en curso. ¿Detenerla?</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as the run left them, and the run can be undone later.</source>
        <translation>Los documentos en curso se terminan; los demás quedan como los dejó la ejecución, que podrá deshacerse más tarde.</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as they are.</source>
        <translation>Los documentos en curso se terminan; los demás quedan como están.</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens: nothing, its bookmarks, small pictures of its pages, its layers or its attachments. Full screen shows the page alone, as in a presentation. Bookmarks are widely followed, full screen only after the viewer has asked.</source>
        <translation>Lo que hay junto a la página cuando se abre el documento: nada, sus marcadores, imágenes pequeñas de sus páginas, sus capas o sus archivos adjuntos. La pantalla completa muestra solo la página, como en una presentación. Casi todos los visores siguen los marcadores; la pantalla completa, solo tras preguntar.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>How the pages are set out. In columns they follow each other while scrolling; single pages and pairs are turned. Simple viewers know fewer layouts or keep the one used last.</source>
        <translation>Cómo se disponen las páginas. En columnas se suceden al desplazarse; las páginas sueltas y las parejas se pasan. Los visores sencillos conocen menos diseños o mantienen el último usado.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The page that is shown first. It counts the sheets from the beginning, whatever numbers are printed on them. Widely followed, but many viewers return to where the reader stopped last.</source>
        <translation>La página que se muestra primero. Cuenta las hojas desde el principio, sean cuales sean los números impresos. Casi todos los visores la siguen, pero muchos vuelven al punto donde se dejó la lectura.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the first page is shown. Fitting the page or its width and percentages are widely followed; fitting the height or what is visible is rarer.</source>
        <translation>A qué tamaño se muestra la primera página. Casi todos los visores siguen el ajuste a la página o a su anchura y los porcentajes; menos, el ajuste a la altura o a lo visible.</translation>
    </message>
    <message>
        <source>Tool bars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Whether the viewer hides its tool bars. Viewers in web browsers ignore this.</source>
        <translation>Si el visor oculta sus barras de herramientas. Los visores de los navegadores no lo siguen.</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>Barra de menús</translation>
    </message>
    <message>
        <source>Whether the viewer hides its menu bar. Readers then need the keyboard. Viewers in web browsers ignore this.</source>
        <translation>Si el visor oculta su barra de menús. Los lectores necesitan entonces el teclado. Los visores de los navegadores no lo siguen.</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Whether the viewer hides scroll bars and other controls. Viewers in web browsers ignore this.</source>
        <translation>Si el visor oculta las barras de desplazamiento y otros controles. Los visores de los navegadores no lo siguen.</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>Tamaño de ventana</translation>
    </message>
    <message>
        <source>Whether the window takes the size of the first page. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Si la ventana toma el tamaño de la primera página. Los visores de los navegadores y los que tienen pestañas no lo siguen.</translation>
    </message>
    <message>
        <source>Window place</source>
        <translation>Lugar de ventana</translation>
    </message>
    <message>
        <source>Whether the window stands in the middle of the screen. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>Si la ventana se sitúa en el centro de la pantalla. Los visores de los navegadores y los que tienen pestañas no lo siguen.</translation>
    </message>
    <message>
        <source>Title bar</source>
        <translation>Barra de título</translation>
    </message>
    <message>
        <source>What the title bar of the viewer says: the name of the file, or the document&apos;s own title. Accessibility rules ask for the title.</source>
        <translation>Lo que dice la barra de título del visor: el nombre del archivo o el título propio del documento. Las normas de accesibilidad piden el título.</translation>
    </message>
    <message>
        <source>After full screen</source>
        <translation>Tras pantalla completa</translation>
    </message>
    <message>
        <source>The panel that shows once full screen is left.</source>
        <translation>El panel que se muestra al salir de la pantalla completa.</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>Sentido de lectura</translation>
    </message>
    <message>
        <source>Which page of a pair stands on the left. It does not change the text.</source>
        <translation>Qué página de una pareja queda a la izquierda. No cambia el texto.</translation>
    </message>
    <message>
        <source>Print scaling</source>
        <translation>Escala de impresión</translation>
    </message>
    <message>
        <source>How the print dialog scales pages at first. Forms and labels want none.</source>
        <translation>Cómo escala al principio las páginas el diálogo de impresión. Los formularios y las etiquetas no quieren ninguna.</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>How the print dialog uses the two sides of the paper at first.</source>
        <translation>Cómo usa al principio las dos caras del papel el diálogo de impresión.</translation>
    </message>
    <message>
        <source>Paper tray</source>
        <translation>Bandeja de papel</translation>
    </message>
    <message>
        <source>Whether the size of the page selects the paper tray.</source>
        <translation>Si el tamaño de la página elige la bandeja de papel.</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>The number of copies that the print dialog proposes.</source>
        <translation>El número de copias que propone el diálogo de impresión.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>The document&apos;s title, as its properties and the title bar show it.</source>
        <translation>El título del documento, como lo muestran sus propiedades y la barra de título.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>The document&apos;s language, for example en-GB. Screen readers choose the voice by it.</source>
        <translation>El idioma del documento, por ejemplo es-ES. Los lectores de pantalla eligen la voz según él.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Archivos adjuntos</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Single page</source>
        <translation>Una sola página</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>Una columna</translation>
    </message>
    <message>
        <source>Two columns, odd left</source>
        <translation>Dos columnas, impares a la izquierda</translation>
    </message>
    <message>
        <source>Two columns, odd right</source>
        <translation>Dos columnas, impares a la derecha</translation>
    </message>
    <message>
        <source>Two pages, odd left</source>
        <translation>Dos páginas, impares a la izquierda</translation>
    </message>
    <message>
        <source>Two pages, odd right</source>
        <translation>Dos páginas, impares a la derecha</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>As the first page</source>
        <translation>Como la primera página</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Como estaba</translation>
    </message>
    <message>
        <source>Middle of the screen</source>
        <translation>Centro de la pantalla</translation>
    </message>
    <message>
        <source>Where it was</source>
        <translation>Donde estaba</translation>
    </message>
    <message>
        <source>Document title</source>
        <translation>Título del documento</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De izquierda a derecha</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>No scaling</source>
        <translation>Sin escala</translation>
    </message>
    <message>
        <source>As the viewer likes</source>
        <translation>Como quiera el visor</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Una cara</translation>
    </message>
    <message>
        <source>Two sides, long edge</source>
        <translation>Dos caras, borde largo</translation>
    </message>
    <message>
        <source>Two sides, short edge</source>
        <translation>Dos caras, borde corto</translation>
    </message>
    <message>
        <source>By the page size</source>
        <translation>Según el tamaño de página</translation>
    </message>
    <message>
        <source>As the printer likes</source>
        <translation>Como quiera la impresora</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ajustar página</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ajustar anchura</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Ajustar altura</translation>
    </message>
    <message>
        <source>Fit visible</source>
        <translation>Ajustar lo visible</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>A magnification, %1 is the number.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin establecer</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Última</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>Del nombre del archivo</translation>
    </message>
    <message>
        <source>Runs a script</source>
        <translation>Ejecuta un script</translation>
    </message>
    <message>
        <source>Opens a web page</source>
        <translation>Abre una página web</translation>
    </message>
    <message>
        <source>Other action (%1)</source>
        <extracomment>%1 is the kind of an action as the document names it, such as Launch.</extracomment>
        <translation>Otra acción (%1)</translation>
    </message>
</context>
<context>
    <name>host::desktop::ActionTable</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>&amp;Documento</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambio</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecución</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>Añadir a&amp;rchivos…</translation>
    </message>
    <message>
        <source>Adds documents to the list</source>
        <translation>Añade documentos a la lista</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Añadir &amp;carpeta…</translation>
    </message>
    <message>
        <source>Adds the documents of a folder and of those below it</source>
        <translation>Añade los documentos de una carpeta y de sus subcarpetas</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>&amp;Guardar informe…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Guarda en un archivo qué ha sido de cada documento</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Closes the window; list and change are there again the next time</source>
        <translation>Cierra la ventana; la lista y el cambio estarán ahí la próxima vez</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Paste Documents</source>
        <translation>&amp;Pegar documentos</translation>
    </message>
    <message>
        <source>Adds the files, folders and paths that were copied elsewhere</source>
        <translation>Añade los archivos, carpetas y rutas copiados en otro lugar</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>Takes the selected documents out of the list; the files stay</source>
        <translation>Quita de la lista los documentos seleccionados; los archivos se quedan</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Selects all documents that are shown</source>
        <translation>Selecciona todos los documentos mostrados</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Shows the documents that have certain words</source>
        <translation>Muestra los documentos que tienen ciertas palabras</translation>
    </message>
    <message>
        <source>&amp;Open in Viewer</source>
        <translation>&amp;Abrir en el visor</translation>
    </message>
    <message>
        <source>Opens the current document</source>
        <translation>Abre el documento actual</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Shows the current document in the file manager</source>
        <translation>Muestra el documento actual en el gestor de archivos</translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation>&amp;Copiar rutas</translation>
    </message>
    <message>
        <source>Copies the paths of the selected documents</source>
        <translation>Copia las rutas de los documentos seleccionados</translation>
    </message>
    <message>
        <source>Give &amp;Password…</source>
        <translation>&amp;Introducir contraseña…</translation>
    </message>
    <message>
        <source>Tries a password on all documents that want one</source>
        <translation>Prueba una contraseña en todos los documentos que la piden</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
    <message>
        <source>&amp;Like This Document</source>
        <translation>&amp;Como este documento</translation>
    </message>
    <message>
        <source>Makes documents open as the current one does</source>
        <translation>Hace que los documentos se abran como el actual</translation>
    </message>
    <message>
        <source>C&amp;onfigure the Action…</source>
        <translation>C&amp;onfigurar la acción…</translation>
    </message>
    <message>
        <source>Makes the settings in the action&apos;s own window</source>
        <translation>Hace los ajustes en la ventana propia de la acción</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>&amp;Guardar como preajuste…</translation>
    </message>
    <message>
        <source>Keeps the change under a name</source>
        <translation>Guarda el cambio con un nombre</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>&amp;Mantener todo</translation>
    </message>
    <message>
        <source>Sets nothing</source>
        <translation>No establece nada</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>Copiar como coman&amp;do</translation>
    </message>
    <message>
        <source>Copies the command line that does the same</source>
        <translation>Copia la línea de comandos que hace lo mismo</translation>
    </message>
    <message>
        <source>&amp;Start…</source>
        <translation>&amp;Iniciar…</translation>
    </message>
    <message>
        <source>Says what will be done to how many documents, and asks</source>
        <translation>Dice qué se hará con cuántos documentos, y pregunta</translation>
    </message>
    <message>
        <source>&amp;Pause or Go On</source>
        <translation>&amp;Pausar o reanudar</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>No empieza ningún documento más hasta que se reanude</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>D&amp;etener</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Termina los documentos en curso y no empieza más</translation>
    </message>
    <message>
        <source>Try Failed &amp;Again</source>
        <translation>&amp;Reintentar los fallidos</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Repite lo que falló o no se hizo</translation>
    </message>
    <message>
        <source>&amp;Undo Last Run…</source>
        <translation>&amp;Deshacer la última ejecución…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Devuelve cada documento a como estaba antes de la ejecución</translation>
    </message>
    <message>
        <source>Earlier &amp;Runs…</source>
        <translation>Ejecuciones &amp;anteriores…</translation>
    </message>
    <message>
        <source>Tells of the runs that can be undone</source>
        <translation>Muestra las ejecuciones que se pueden deshacer</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Shows how the current document opens, before and after</source>
        <translation>Muestra cómo se abre el documento actual, antes y después</translation>
    </message>
    <message>
        <source>&amp;Next Part of the Window</source>
        <translation>Parte &amp;siguiente de la ventana</translation>
    </message>
    <message>
        <source>Goes from the list to the change and on</source>
        <translation>Va de la lista al cambio y sigue</translation>
    </message>
    <message>
        <source>P&amp;revious Part of the Window</source>
        <translation>Parte &amp;anterior de la ventana</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>Vuelve atrás</translation>
    </message>
    <message>
        <source>&amp;Settings and Viewers</source>
        <translation>A&amp;justes y visores</translation>
    </message>
    <message>
        <source>Explains each setting and which viewers follow it</source>
        <translation>Explica cada ajuste y qué visores lo siguen</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Lists all keys</source>
        <translation>Enumera todas las teclas</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>¿&amp;Qué es esto?</translation>
    </message>
    <message>
        <source>Explains what is clicked next</source>
        <translation>Explica lo que se pulse a continuación</translation>
    </message>
    <message>
        <source>&amp;About Quintar</source>
        <translation>&amp;Acerca de Quintar</translation>
    </message>
    <message>
        <source>Names the version</source>
        <translation>Indica la versión</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>Chooses what the list tells of each document</source>
        <translation>Elige qué dice la lista de cada documento</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Chooses in which order the documents stand</source>
        <translation>Elige el orden de los documentos</translation>
    </message>
    <message>
        <source>Move Column &amp;Left</source>
        <translation>Mover columna a la i&amp;zquierda</translation>
    </message>
    <message>
        <source>Moves the column that the keyboard is in</source>
        <translation>Mueve la columna en la que está el teclado</translation>
    </message>
    <message>
        <source>Move Column Ri&amp;ght</source>
        <translation>Mover columna a la &amp;derecha</translation>
    </message>
    <message>
        <source>Takes back what was last added, removed or set</source>
        <translation>Deshace lo último que se añadió, quitó o ajustó</translation>
    </message>
    <message>
        <source>Does once more what was taken back</source>
        <translation>Vuelve a hacer lo que se deshizo</translation>
    </message>
    <message>
        <source>Sho&amp;w Results</source>
        <translation>&amp;Ver los resultados</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Abre la carpeta en la que escribió la ejecución</translation>
    </message>
    <message>
        <source>Reads the documents that are shown once more</source>
        <translation>Lee otra vez los documentos mostrados</translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message>
        <source>Show Them</source>
        <translation>Mostrarlos</translation>
    </message>
    <message>
        <source>Show them: %1</source>
        <translation>Mostrarlos: %1</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>Mantener &amp;todo</translation>
    </message>
    <message>
        <source>Cha&amp;nge for</source>
        <translation>&amp;Para</translation>
    </message>
    <message>
        <source>Change for</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>A change is for all documents that are shown, or for those that are selected. Documents that the search or the filter hides stay as they are.</source>
        <translation>Un cambio vale para todos los documentos mostrados o para los seleccionados. Los documentos que ocultan la búsqueda o el filtro quedan como están.</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>Preaju&amp;stes</translation>
    </message>
    <message>
        <source>Changes under a name: views that you keep, and the action lists and favourites of the action “Initial View”.</source>
        <translation>Cambios con nombre: las vistas que usted guarda y las listas de acciones y favoritos de la acción «Initial View».</translation>
    </message>
    <message>
        <source>Title and language</source>
        <translation>Título e idioma</translation>
    </message>
    <message>
        <source>Viewer&apos;s window</source>
        <translation>Ventana del visor</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>C&amp;onfigure…</source>
        <translation>Con&amp;figurar…</translation>
    </message>
    <message numerus="yes">
        <source>all %Ln document(s)</source>
        <translation>
            <numerusform>el %Ln documento</numerusform>
            <numerusform>los %Ln documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %Ln shown</source>
        <translation>
            <numerusform>el %Ln mostrado</numerusform>
            <numerusform>los %Ln mostrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %Ln selected</source>
        <translation>
            <numerusform>el %Ln seleccionado</numerusform>
            <numerusform>los %Ln seleccionados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChildRun</name>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>No se pudo iniciar %1: %2</translation>
    </message>
    <message>
        <source>the program said more than can be understood</source>
        <translation>el programa dijo más de lo que se puede entender</translation>
    </message>
    <message>
        <source>%1 crashed</source>
        <translation>%1 falló inesperadamente</translation>
    </message>
    <message>
        <source>%1 ended too early, with exit status %2</source>
        <translation>%1 terminó antes de tiempo, con el estado de salida %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::ColumnMenus</name>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Ascendente</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Descendente</translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>The clipboard holds no files, folders or paths.</source>
        <translation>El portapapeles no contiene archivos, carpetas ni rutas.</translation>
    </message>
    <message>
        <source>Folder for the Results</source>
        <translation>Carpeta de los resultados</translation>
    </message>
    <message>
        <source>Undo this run?</source>
        <translation>¿Deshacer esta ejecución?</translation>
    </message>
    <message numerus="yes">
        <source>Give %Ln document(s) back as they were?</source>
        <translation>
            <numerusform>¿Devolver %Ln documento a como estaba?</numerusform>
            <numerusform>¿Devolver %Ln documentos a como estaban?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents that have been changed since by something else are left alone.</source>
        <translation>Los documentos que otra cosa ha cambiado después quedan intactos.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer la ejecución</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Guardar informe</translation>
    </message>
    <message>
        <source>report.tsv</source>
        <translation>informe.tsv</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>The report is in %1.</source>
        <translation>El informe está en %1.</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>No se pudo escribir el informe en %1: %2</translation>
    </message>
    <message>
        <source>About Quintar</source>
        <translation>Acerca de Quintar</translation>
    </message>
    <message>
        <source>Quintar %1</source>
        <translation>Quintar %1</translation>
    </message>
    <message>
        <source>Says how PDF documents open. It adds to a document and never takes away: every run in place can be undone.</source>
        <translation>Dice cómo se abren los documentos PDF. Añade a un documento y nunca quita nada: toda ejecución en los propios documentos se puede deshacer.</translation>
    </message>
    <message>
        <source>No viewer took %1.</source>
        <translation>Ningún visor aceptó %1.</translation>
    </message>
    <message>
        <source>No file manager took %1.</source>
        <translation>Ningún gestor de archivos aceptó %1.</translation>
    </message>
    <message>
        <source>The command is in the clipboard.</source>
        <translation>El comando está en el portapapeles.</translation>
    </message>
    <message>
        <source>The change makes documents open as %1 does.</source>
        <translation>El cambio hace que los documentos se abran como %1.</translation>
    </message>
    <message>
        <source>The password is tried on all documents that want one. It is kept until this window is closed.</source>
        <translation>La contraseña se prueba en todos los documentos que la piden. Se conserva hasta que se cierre esta ventana.</translation>
    </message>
    <message>
        <source>The command is in the clipboard. It waits for the password to be typed.</source>
        <translation>El comando está en el portapapeles. Espera a que se escriba la contraseña.</translation>
    </message>
    <message>
        <source>No document would be changed.</source>
        <translation>No se cambiaría ningún documento.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again to try once more.</source>
        <translation>No se sabe qué cambiaría. Vuelva a leer los documentos para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
</context>
<context>
    <name>host::desktop::DestinationRow</name>
    <message>
        <source>The documents themselves</source>
        <translation>En los propios documentos</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>En una carpeta</translation>
    </message>
    <message>
        <source>Beside them, under another name</source>
        <translation>Al lado, con otro nombre</translation>
    </message>
    <message>
        <source>Write to</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>A run changes the documents themselves, which can be undone, or leaves them as they are and writes its results into a folder or beside them.</source>
        <translation>Una ejecución cambia los propios documentos, lo que se puede deshacer, o los deja como están y escribe sus resultados en una carpeta o a su lado.</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>Carpeta de los resultados</translation>
    </message>
    <message>
        <source>Choose the folder for the results</source>
        <translation>Elegir la carpeta de los resultados</translation>
    </message>
    <message>
        <source>Added to the names</source>
        <translation>Añadido a los nombres</translation>
    </message>
    <message>
        <source>The run can be undone.</source>
        <translation>La ejecución se puede deshacer.</translation>
    </message>
    <message>
        <source>The documents stay as they are.</source>
        <translation>Los documentos quedan como están.</translation>
    </message>
    <message>
        <source>manual.pdf becomes manual-%1.pdf.</source>
        <translation>manual.pdf pasa a ser manual-%1.pdf.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>Escri&amp;bir</translation>
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
        <translation>Acerca del documento actual</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Seleccione un documento para ver cómo se abre.</translation>
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
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rehacer: quitar %Ln documento</numerusform>
            <numerusform>&amp;Rehacer: quitar %Ln documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Deshacer: quitar %Ln documento</numerusform>
            <numerusform>&amp;Deshacer: quitar %Ln documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Rehacer: añadir %Ln documento</numerusform>
            <numerusform>&amp;Rehacer: añadir %Ln documentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>&amp;Deshacer: añadir %Ln documento</numerusform>
            <numerusform>&amp;Deshacer: añadir %Ln documentos</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Redo Changing the Settings</source>
        <translation>&amp;Rehacer: cambiar los ajustes</translation>
    </message>
    <message>
        <source>&amp;Undo Changing the Settings</source>
        <translation>&amp;Deshacer: cambiar los ajustes</translation>
    </message>
    <message>
        <source>&amp;Redo Setting “%1”</source>
        <translation>&amp;Rehacer: ajustar «%1»</translation>
    </message>
    <message>
        <source>&amp;Undo Setting “%1”</source>
        <translation>&amp;Deshacer: ajustar «%1»</translation>
    </message>
</context>
<context>
    <name>host::desktop::EmptyPage</name>
    <message>
        <source>Say how PDF documents open</source>
        <translation>Diga cómo se abren los documentos PDF</translation>
    </message>
    <message>
        <source>With their bookmarks, with their title, at page 1.
Drop documents or folders here. Nothing is changed before you start it.</source>
        <translation>Con sus marcadores, con su título, en la página 1.
Suelte aquí documentos o carpetas. No se cambia nada hasta que usted lo inicie.</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Añadir a&amp;rchivos…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Añadir carpe&amp;ta…</translation>
    </message>
    <message>
        <source>A document that opens with its bookmarks and its title</source>
        <translation>Un documento que se abre con sus marcadores y su título</translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search name, folder, title</source>
        <translation>Buscar nombre, carpeta, título</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s)</source>
        <translation>
            <numerusform>%Ln documento</numerusform>
            <numerusform>%Ln documentos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 de %2 mostrados</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Mostrar todos</translation>
    </message>
    <message>
        <source>Shows all documents again (Esc)</source>
        <translation>Vuelve a mostrar todos los documentos (Esc)</translation>
    </message>
</context>
<context>
    <name>host::desktop::HelpWindow</name>
    <message>
        <source>Help - Quintar</source>
        <translation>Ayuda – Quintar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>host::desktop::HistoryDialog</name>
    <message>
        <source>Earlier Runs</source>
        <translation>Ejecuciones anteriores</translation>
    </message>
    <message>
        <source>Undoing gives each document back as it was before the run. Documents that something else has changed since are left alone.</source>
        <translation>Deshacer devuelve cada documento a como estaba antes de la ejecución. Los documentos que otra cosa ha cambiado después quedan intactos.</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>Des&amp;hacer esta ejecución…</translation>
    </message>
    <message>
        <source>Earlier runs</source>
        <translation>Ejecuciones anteriores</translation>
    </message>
</context>
<context>
    <name>host::desktop::Logout</name>
    <message>
        <source>&amp;Stop and Log Out</source>
        <translation>&amp;Detener y cerrar la sesión</translation>
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
            <numerusform>%Ln documento – Quintar</numerusform>
            <numerusform>%Ln documentos – Quintar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 % - Quintar</source>
        <translation>%1&#xa0;% – Quintar</translation>
    </message>
    <message>
        <source>&amp;Stop and Close</source>
        <translation>&amp;Detener y cerrar</translation>
    </message>
    <message>
        <source>What was dropped are no files or folders.</source>
        <translation>Lo que se ha soltado no son archivos ni carpetas.</translation>
    </message>
</context>
<context>
    <name>host::desktop::PresetMenu</name>
    <message>
        <source>Views</source>
        <translation>Vistas</translation>
    </message>
    <message>
        <source>Action Lists</source>
        <translation>Listas de acciones</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Nothing is kept yet</source>
        <translation>Aún no hay nada guardado</translation>
    </message>
    <message>
        <source>&amp;Remove Preset</source>
        <translation>&amp;Eliminar preajuste</translation>
    </message>
    <message>
        <source>Remove the preset “%1”?</source>
        <translation>¿Eliminar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>The change is kept as “%1”.</source>
        <translation>El cambio se ha guardado como «%1».</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>¿Reemplazar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>There is one of this name already.</source>
        <translation>Ya hay uno con este nombre.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
</context>
<context>
    <name>host::desktop::PreviewPane</name>
    <message>
        <source>full screen</source>
        <translation>pantalla completa</translation>
    </message>
    <message>
        <source>bookmarks panel</source>
        <translation>panel de marcadores</translation>
    </message>
    <message>
        <source>pages panel</source>
        <translation>panel de páginas</translation>
    </message>
    <message>
        <source>layers panel</source>
        <translation>panel de capas</translation>
    </message>
    <message>
        <source>attachments panel</source>
        <translation>panel de archivos adjuntos</translation>
    </message>
    <message>
        <source>no panel</source>
        <translation>sin panel</translation>
    </message>
    <message>
        <source>title bar “%1”, %2, page %3 of %4</source>
        <translation>barra de título «%1», %2, página %3 de %4</translation>
    </message>
    <message>
        <source>Many viewers ask before full screen; browsers ignore it.</source>
        <translation>Muchos visores preguntan antes de la pantalla completa; los navegadores no la siguen.</translation>
    </message>
    <message>
        <source>Full-featured viewers do this; browsers ignore bars and windows.</source>
        <translation>Los visores completos lo hacen; los navegadores no siguen barras ni ventanas.</translation>
    </message>
    <message>
        <source>Viewers that have this panel show it.</source>
        <translation>Los visores que tienen este panel lo muestran.</translation>
    </message>
    <message>
        <source>Full-featured viewers and Firefox follow the layout; others keep their own.</source>
        <translation>Los visores completos y Firefox siguen el diseño; los demás mantienen el suyo.</translation>
    </message>
    <message>
        <source>Most desktop viewers do this; browsers follow page and zoom.</source>
        <translation>La mayoría de los visores de escritorio lo hacen; los navegadores siguen la página y el zoom.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>A drawing of the first moment of the current document, as it opens now and as it will. Each viewer decides for itself what of this it does.</source>
        <translation>Un dibujo del primer momento del documento actual, tal como se abre ahora y como se abrirá. Cada visor decide por sí mismo qué hace de todo ello.</translation>
    </message>
    <message>
        <source>Opens with %1.</source>
        <translation>Se abre con %1.</translation>
    </message>
    <message>
        <source>Before: %1. After: %2. %3</source>
        <translation>Antes: %1. Después: %2. %3</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>Seleccione un documento para ver cómo se abre.</translation>
    </message>
    <message>
        <source>Opens like this</source>
        <translation>Se abre así</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>host::desktop::Reading</name>
    <message>
        <source>it cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>not read: reading was stopped</source>
        <translation>no leído: se detuvo la lectura</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message>
        <source>Show Wh&amp;y</source>
        <translation>Ve&amp;r por qué</translation>
    </message>
    <message>
        <source>Shows the documents that failed or cannot be changed</source>
        <translation>Muestra los documentos que fallaron o que no se pueden cambiar</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>Des&amp;hacer esta ejecución…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>Devuelve cada documento a como estaba antes de la ejecución</translation>
    </message>
    <message>
        <source>Tr&amp;y Failed Again</source>
        <translation>Reintentar &amp;los fallidos</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>Repite lo que falló o no se hizo</translation>
    </message>
    <message>
        <source>Save Repor&amp;t…</source>
        <translation>&amp;Guardar informe…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>Guarda en un archivo qué ha sido de cada documento</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>Pa&amp;usar</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>No empieza ningún documento más hasta que se reanude</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Dete&amp;ner</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>Termina los documentos en curso y no empieza más</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln Fa&amp;iled</source>
        <translation>
            <numerusform>Ve&amp;r %Ln fallido</numerusform>
            <numerusform>Ve&amp;r %Ln fallidos</numerusform>
        </translation>
    </message>
    <message>
        <source>Go &amp;On</source>
        <translation>Rean&amp;udar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>La lista está vacía.</translation>
    </message>
    <message numerus="yes">
        <source>Reading… %Ln document(s) so far</source>
        <translation>
            <numerusform>Leyendo… %Ln documento hasta ahora</numerusform>
            <numerusform>Leyendo… %Ln documentos hasta ahora</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change… %1</source>
        <translation>Averiguando qué cambiaría… %1</translation>
    </message>
    <message>
        <source>Changing… %1</source>
        <translation>Cambiando… %1</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>En pausa en %1</translation>
    </message>
    <message>
        <source>Stopping… documents that are being worked on are finished</source>
        <translation>Deteniendo… se terminan los documentos en curso</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Deshaciendo…</translation>
    </message>
    <message>
        <source>Say on the right what is to change.</source>
        <translation>Diga a la derecha qué debe cambiar.</translation>
    </message>
    <message>
        <source>Nothing would change</source>
        <translation>No cambiaría nada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln will change</source>
        <translation>
            <numerusform>%Ln cambiará</numerusform>
            <numerusform>%Ln cambiarán</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln open so already</source>
        <translation>
            <numerusform>%Ln ya se abre así</numerusform>
            <numerusform>%Ln ya se abren así</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be changed</source>
        <translation>
            <numerusform>%Ln no se puede cambiar</numerusform>
            <numerusform>%Ln no se pueden cambiar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln cambiado</numerusform>
            <numerusform>%Ln cambiados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln as they were</source>
        <translation>
            <numerusform>%Ln como estaba</numerusform>
            <numerusform>%Ln como estaban</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln fallido</numerusform>
            <numerusform>%Ln fallidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not done</source>
        <translation>
            <numerusform>%Ln sin hacer</numerusform>
            <numerusform>%Ln sin hacer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>queda %Ln segundo aprox.</numerusform>
            <numerusform>quedan %Ln segundos aprox.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>queda %Ln minuto aprox.</numerusform>
            <numerusform>quedan %Ln minutos aprox.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A number of documents, and why they cannot be changed: &quot;4 signed&quot;</extracomment>
        <translation>%2: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undoing… %1</source>
        <translation>Deshaciendo… %1</translation>
    </message>
    <message>
        <source>Show Res&amp;ults</source>
        <translation>Ver resultados e&amp;n su carpeta</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>Abre la carpeta en la que escribió la ejecución</translation>
    </message>
    <message>
        <source>No document is shown that the change could be for.</source>
        <translation>No se muestra ningún documento al que aplicar el cambio.</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again (F5) to find out.</source>
        <translation>No se sabe qué cambiaría. Vuelva a leer los documentos (F5) para averiguarlo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln escrito</numerusform>
            <numerusform>%Ln escritos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln copied as they were</source>
        <translation>
            <numerusform>%Ln copiado como estaba</numerusform>
            <numerusform>%Ln copiados como estaban</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message>
        <source>The run could not be written down in %1: %2</source>
        <translation>No se pudo anotar la ejecución en %1: %2</translation>
    </message>
    <message>
        <source>A run that was broken off</source>
        <translation>Una ejecución interrumpida</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln cambiado</numerusform>
            <numerusform>%Ln cambiados</numerusform>
        </translation>
    </message>
    <message>
        <source>undone</source>
        <translation>deshecha</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>se puede deshacer</translation>
    </message>
    <message>
        <source>documents are as they were</source>
        <translation>los documentos están como estaban</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>Cuántos</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln escrito</numerusform>
            <numerusform>%Ln escritos</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>nada que deshacer</translation>
    </message>
    <message>
        <source>Broken off: %1</source>
        <translation>Interrumpida: %1</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunMachine</name>
    <message>
        <source>Close the settings first.</source>
        <translation>Cierre antes los ajustes.</translation>
    </message>
    <message>
        <source>Wait until the run has ended.</source>
        <translation>Espere a que termine la ejecución.</translation>
    </message>
    <message>
        <source>Add documents first.</source>
        <translation>Añada antes documentos.</translation>
    </message>
    <message>
        <source>Wait until all documents are read.</source>
        <translation>Espere a que se lean todos los documentos.</translation>
    </message>
    <message>
        <source>Wait until it is known what would change.</source>
        <translation>Espere a que se sepa qué cambiaría.</translation>
    </message>
    <message>
        <source>Wait until the run is undone.</source>
        <translation>Espere a que se deshaga la ejecución.</translation>
    </message>
    <message>
        <source>Say first what is to change.</source>
        <translation>Diga antes qué debe cambiar.</translation>
    </message>
    <message>
        <source>Nothing is under way.</source>
        <translation>No hay nada en curso.</translation>
    </message>
    <message>
        <source>This run is done. Change something to start another one.</source>
        <translation>Esta ejecución está hecha. Cambie algo para iniciar otra.</translation>
    </message>
</context>
<context>
    <name>host::desktop::Session</name>
    <message>
        <source>A list of an earlier session cannot be read, and is left as it is: %1</source>
        <translation>Una lista de una sesión anterior no se puede leer y se deja como está: %1</translation>
    </message>
    <message>
        <source>List and change will not be there the next time: %1: %2</source>
        <translation>La lista y el cambio no estarán la próxima vez: %1: %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::SettingRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1, número</translation>
    </message>
    <message>
        <source>%1, text</source>
        <translation>%1, texto</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Mantener</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primera</translation>
    </message>
    <message>
        <source>Page…</source>
        <translation>Página…</translation>
    </message>
    <message>
        <source>Number…</source>
        <translation>Número…</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>Del nombre del archivo</translation>
    </message>
    <message>
        <source>From the file name, where missing</source>
        <translation>Del nombre del archivo, si falta</translation>
    </message>
    <message>
        <source>This text:</source>
        <translation>Este texto:</translation>
    </message>
    <message>
        <source>Remove the setting</source>
        <translation>Quitar el ajuste</translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) will be changed in place.</source>
        <translation>
            <numerusform>Se cambiará %Ln documento directamente.</numerusform>
            <numerusform>Se cambiarán %Ln documentos directamente.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written to %1.</source>
        <translation>
            <numerusform>Se escribirá %Ln resultado en %1.</numerusform>
            <numerusform>Se escribirán %Ln resultados en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>Se escribirá %Ln resultado junto al documento, con «-%1» añadido a su nombre.</numerusform>
            <numerusform>Se escribirán %Ln resultados junto a los documentos, con «-%1» añadido a sus nombres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) there will be replaced.</source>
        <translation>
            <numerusform>Se reemplazará %Ln archivo allí.</numerusform>
            <numerusform>Se reemplazarán %Ln archivos allí.</numerusform>
        </translation>
    </message>
    <message>
        <source>What the run changes can be undone.</source>
        <translation>Lo que cambia la ejecución se puede deshacer.</translation>
    </message>
    <message>
        <source>The documents themselves stay as they are.</source>
        <translation>Los propios documentos quedan como están.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%Ln documento no se puede cambiar y queda como está.</numerusform>
            <numerusform>%Ln documentos no se pueden cambiar y quedan como están.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ToolBar</name>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>S&amp;tart…</source>
        <translation>&amp;Iniciar…</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;ñadir</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message>
        <source>What you added waits until this is done.</source>
        <translation>Lo que ha añadido espera a que esto termine.</translation>
    </message>
    <message>
        <source>Reading broke off.</source>
        <translation>La lectura se interrumpió.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were in the list already.</source>
        <translation>
            <numerusform>%Ln documento ya estaba en la lista.</numerusform>
            <numerusform>%Ln documentos ya estaban en la lista.</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change broke off.</source>
        <translation>La averiguación de lo que cambiaría se interrumpió.</translation>
    </message>
    <message>
        <source>Nothing is begun: the folder for reports cannot be made: %1</source>
        <translation>No se empieza nada: no se puede crear la carpeta de informes: %1</translation>
    </message>
    <message>
        <source>The run broke off.</source>
        <translation>La ejecución se interrumpió.</translation>
    </message>
    <message>
        <source>Undoing broke off.</source>
        <translation>Se interrumpió el deshacer.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%Ln documento está como antes de la ejecución.</numerusform>
            <numerusform>%Ln documentos están como antes de la ejecución.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%Ln documento quedó intacto, pues ya no está como lo dejó la ejecución.</numerusform>
            <numerusform>%Ln documentos quedaron intactos, pues ya no están como los dejó la ejecución.</numerusform>
        </translation>
    </message>
    <message>
        <source>No document of the list wants a password.</source>
        <translation>Ningún documento de la lista pide una contraseña.</translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>Se detuvo la operación de deshacer: %Ln documento está como antes de la ejecución.</numerusform>
            <numerusform>Se detuvo la operación de deshacer: %Ln documentos están como antes de la ejecución.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading was stopped. What was not found until then is not in the list.</source>
        <translation>La lectura se detuvo. Lo que aún no se había encontrado no está en la lista.</translation>
    </message>
    <message>
        <source>No PDF document was found there.</source>
        <translation>No se encontró allí ningún documento PDF.</translation>
    </message>
</context>
</TS>
