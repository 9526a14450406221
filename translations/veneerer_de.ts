<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Canvas</name>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The image can&apos;t be read: %1</source>
        <translation>Das Bild ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>twips</source>
        <translation>Twips</translation>
    </message>
    <message>
        <source>no Section</source>
        <translation>keine Section</translation>
    </message>
    <message>
        <source>Section %1</source>
        <translation>Section %1</translation>
    </message>
    <message>
        <source>the canvas</source>
        <translation>die Arbeitsfläche</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>unterstrichen</translation>
    </message>
    <message>
        <source>struck through</source>
        <translation>durchgestrichen</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>no line end</source>
        <translation>kein Zeilenende</translation>
    </message>
    <message>
        <source>(no line)</source>
        <translation>(keine Zeile)</translation>
    </message>
</context>
<context>
    <name>Designer</name>
    <message>
        <source>it is no folder of the Skin</source>
        <translation>ist kein Ordner des Skins</translation>
    </message>
    <message>
        <source>Use Another Picture</source>
        <translation>Anderes Bild verwenden</translation>
    </message>
    <message>
        <source>Copy Picture into the Skin (its file stays)</source>
        <translation>Bild in den Skin kopieren (die Datei bleibt)</translation>
    </message>
    <message>
        <source>Mend Caption</source>
        <translation>Beschriftung berichtigen</translation>
    </message>
    <message>
        <source>Set Shape to 0</source>
        <translation>Form auf 0 setzen</translation>
    </message>
    <message>
        <source>Set Resolution</source>
        <translation>Auflösung setzen</translation>
    </message>
    <message>
        <source>Copy Twin (its file stays)</source>
        <translation>Gegenstück kopieren (die Datei bleibt)</translation>
    </message>
    <message>
        <source>%1 (its files stay)</source>
        <translation>%1 (die Dateien bleiben)</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Skin %1</translation>
    </message>
    <message>
        <source>Nothing is loaded. %1</source>
        <translation>Nichts wird geladen. %1</translation>
    </message>
    <message>
        <source>The record files are saved, the cover layout isn&apos;t. </source>
        <translation>Die Datensatzdateien sind gespeichert, das Cover-Layout nicht. </translation>
    </message>
    <message>
        <source>Recolour</source>
        <translation>Umfärben</translation>
    </message>
    <message>
        <source>Paste Style</source>
        <translation>Stil einfügen</translation>
    </message>
    <message>
        <source>Look of %1</source>
        <translation>Aussehen von %1</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Verteilen</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>Gleiche Größe</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Nothing is changed. %1</source>
        <translation>Nichts wird geändert. %1</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>No screen is shown whose look could be taken.</source>
        <translation>Kein Bildschirm wird gezeigt, dessen Aussehen übernommen werden könnte.</translation>
    </message>
    <message>
        <source>%1 looks the same in %2.</source>
        <translation>%1 sieht in %2 genauso aus.</translation>
    </message>
    <message>
        <source>Take from Another Skin</source>
        <translation>Aus anderem Skin übernehmen</translation>
    </message>
    <message>
        <source>Nothing is taken. %1</source>
        <translation>Nichts wird übernommen. %1</translation>
    </message>
    <message>
        <source>1 element</source>
        <translation>1 Element</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>The look of %1 is taken from %2.</source>
        <translation>Aussehen aus %2 übernommen: %1.</translation>
    </message>
    <message>
        <source>The look of %1 is taken from %2; copied into the Skin: %3.</source>
        <translation>Aussehen aus %2 übernommen: %1; in den Skin kopiert: %3.</translation>
    </message>
    <message>
        <source>there is no such Skin</source>
        <translation>diesen Skin gibt es nicht</translation>
    </message>
</context>
<context>
    <name>Editing</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>(drawn)</source>
        <translation>(gezeichnet)</translation>
    </message>
</context>
<context>
    <name>Elements</name>
    <message>
        <source>the list has no row %1</source>
        <translation>die Liste hat keine Zeile %1</translation>
    </message>
    <message>
        <source>a check box takes 0, 1 or 2, not %1</source>
        <translation>ein Kontrollkästchen nimmt 0, 1 oder 2, nicht %1</translation>
    </message>
    <message>
        <source>an alignment is 0, 1 or 2, not %1</source>
        <translation>eine Ausrichtung ist 0, 1 oder 2, nicht %1</translation>
    </message>
</context>
<context>
    <name>Exchange</name>
    <message>
        <source>%1: the folder holds more than %2 files</source>
        <translation>%1: der Ordner enthält mehr als %2 Dateien</translation>
    </message>
    <message>
        <source>%1: the files take more than %2 MiB</source>
        <translation>%1: die Dateien belegen mehr als %2 MiB</translation>
    </message>
    <message>
        <source>a part of the name is empty</source>
        <translation>ein Teil des Namens ist leer</translation>
    </message>
    <message>
        <source>the name leads out of its folder</source>
        <translation>der Name führt aus seinem Ordner hinaus</translation>
    </message>
    <message>
        <source>a part of the name is a point</source>
        <translation>ein Teil des Namens ist ein Punkt</translation>
    </message>
    <message>
        <source>the name begins with a drive</source>
        <translation>der Name beginnt mit einem Laufwerk</translation>
    </message>
    <message>
        <source>the name is too long for a file</source>
        <translation>der Name ist zu lang für eine Datei</translation>
    </message>
    <message>
        <source>the name holds a character that isn&apos;t printable</source>
        <translation>der Name enthält ein nicht druckbares Zeichen</translation>
    </message>
    <message>
        <source>the name is an absolute path</source>
        <translation>der Name ist ein absoluter Pfad</translation>
    </message>
    <message>
        <source>a file lies at the top, beside the Skin&apos;s folder</source>
        <translation>eine Datei liegt ganz oben, neben dem Ordner des Skins</translation>
    </message>
    <message>
        <source>a Skin&apos;s name doesn&apos;t begin with a point</source>
        <translation>der Name eines Skins beginnt nicht mit einem Punkt</translation>
    </message>
    <message>
        <source>there is a second folder at the top, beside %1</source>
        <translation>ganz oben liegt neben %1 ein zweiter Ordner</translation>
    </message>
    <message>
        <source>there is a file of its folder&apos;s name</source>
        <translation>es gibt eine Datei mit dem Namen seines Ordners</translation>
    </message>
    <message>
        <source>its folder&apos;s name differs from %1 in case alone</source>
        <translation>der Name seines Ordners unterscheidet sich von %1 nur in der Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>there is a folder of this name</source>
        <translation>es gibt einen Ordner dieses Namens</translation>
    </message>
    <message>
        <source>there is a second file of this name, but for case</source>
        <translation>es gibt eine zweite Datei dieses Namens, nur anders groß- oder kleingeschrieben</translation>
    </message>
    <message>
        <source>%1: the copy would lie within the Skin</source>
        <translation>%1: die Kopie läge innerhalb des Skins</translation>
    </message>
    <message>
        <source>%1: no copy is made: %2</source>
        <translation>%1: keine Kopie angelegt: %2</translation>
    </message>
    <message>
        <source>there is something under this name that is no file</source>
        <translation>unter diesem Namen gibt es etwas, das keine Datei ist</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>die Datei darf nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the name holds a backslash</source>
        <translation>der Name enthält einen umgekehrten Schrägstrich</translation>
    </message>
    <message>
        <source>the archive holds more than %1 files</source>
        <translation>das Archiv enthält mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>the archive holds more than %1 folders</source>
        <translation>das Archiv enthält mehr als %1 Ordner</translation>
    </message>
    <message>
        <source>the archive holds more than %1 entries</source>
        <translation>das Archiv enthält mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>the archive&apos;s files take more than %1 MiB</source>
        <translation>die Dateien des Archivs belegen mehr als %1 MiB</translation>
    </message>
    <message>
        <source>%1: the archive holds no Skin</source>
        <translation>%1: das Archiv enthält keinen Skin</translation>
    </message>
    <message>
        <source>%1: %2: a Skin of this name is there already</source>
        <translation>%1: %2: einen Skin dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>%1: nothing is unpacked: %2</source>
        <translation>%1: nichts wird entpackt: %2</translation>
    </message>
    <message>
        <source>the folder holds bytes like a file</source>
        <translation>der Ordner enthält Bytes wie eine Datei</translation>
    </message>
    <message>
        <source>%1: the file is no zip archive, or damaged</source>
        <translation>%1: die Datei ist kein Zip-Archiv oder beschädigt</translation>
    </message>
    <message>
        <source>%1: the archive is damaged</source>
        <translation>%1: das Archiv ist beschädigt</translation>
    </message>
    <message>
        <source>the entry is a link</source>
        <translation>der Eintrag ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>the entry is no plain file and no folder</source>
        <translation>der Eintrag ist weder einfache Datei noch Ordner</translation>
    </message>
    <message>
        <source>the entry is encrypted</source>
        <translation>der Eintrag ist verschlüsselt</translation>
    </message>
    <message>
        <source>the entry is packed in a way that can&apos;t be read</source>
        <translation>der Eintrag ist auf nicht lesbare Weise gepackt</translation>
    </message>
    <message>
        <source>the entry is damaged</source>
        <translation>der Eintrag ist beschädigt</translation>
    </message>
    <message>
        <source>it can&apos;t be packed</source>
        <translation>nicht zu packen</translation>
    </message>
    <message>
        <source>the file grows while it is packed</source>
        <translation>die Datei wächst, während sie gepackt wird</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>there is something under this name that is no file</source>
        <translation>unter diesem Namen gibt es etwas, das keine Datei ist</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the folder can&apos;t be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>a name that can&apos;t be read</source>
        <translation>ein nicht lesbarer Name</translation>
    </message>
    <message>
        <source>a folder that may not be read</source>
        <translation>ein Ordner ohne Leserecht</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>a link that leads nowhere</source>
        <translation>eine Verknüpfung ins Leere</translation>
    </message>
    <message>
        <source>a link that leads out of the folder</source>
        <translation>eine Verknüpfung aus dem Ordner hinaus</translation>
    </message>
    <message>
        <source>a link to what is no file</source>
        <translation>eine Verknüpfung zu etwas, das keine Datei ist</translation>
    </message>
    <message>
        <source>something of this name is there already</source>
        <translation>etwas dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>the file can&apos;t be read: %1</source>
        <translation>die Datei ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>the file is a link that leads nowhere</source>
        <translation>die Datei ist eine Verknüpfung ins Leere</translation>
    </message>
    <message>
        <source>the file lies outside the Skin&apos;s folder</source>
        <translation>die Datei liegt außerhalb des Skin-Ordners</translation>
    </message>
    <message>
        <source>the file is replaced again and again while it is read</source>
        <translation>die Datei wird beim Lesen immer wieder ersetzt</translation>
    </message>
    <message>
        <source>the file isn&apos;t there</source>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>the folder %1 is gone</source>
        <translation>der Ordner %1 ist nicht mehr da</translation>
    </message>
    <message>
        <source>the file lies outside the folder %1 and isn&apos;t written</source>
        <translation>die Datei liegt außerhalb des Ordners %1 und wird nicht geschrieben</translation>
    </message>
    <message>
        <source>the name is too long for a file</source>
        <translation>der Name ist zu lang für eine Datei</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>die Datei darf nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the folder takes no new files</source>
        <translation>der Ordner nimmt keine neuen Dateien auf</translation>
    </message>
</context>
<context>
    <name>Forms</name>
    <message>
        <source>Whether the jukebox offers this; nothing changes on the canvas</source>
        <translation>Ob die Jukebox dies anbietet; auf der Arbeitsfläche ändert sich nichts</translation>
    </message>
    <message>
        <source>Whether the jukebox has this in its menu bar; nothing changes on the canvas</source>
        <translation>Ob die Jukebox dies in ihrer Menüleiste hat; auf der Arbeitsfläche ändert sich nichts</translation>
    </message>
    <message>
        <source>Whether the jukebox has this tab; nothing changes on the canvas</source>
        <translation>Ob die Jukebox diesen Reiter hat; auf der Arbeitsfläche ändert sich nichts</translation>
    </message>
    <message>
        <source>Write these choices to the Skin&apos;s folder at once</source>
        <translation>Diese Auswahl sofort in den Ordner des Skins schreiben</translation>
    </message>
    <message>
        <source>Click a Skin to load it</source>
        <translation>Einen Skin anklicken, um ihn zu laden</translation>
    </message>
    <message>
        <source>The folders of the Skins; a click there loads nothing</source>
        <translation>Die Ordner der Skins; ein Klick hier lädt nichts</translation>
    </message>
    <message>
        <source>Has no effect</source>
        <translation>Hat keine Wirkung</translation>
    </message>
    <message>
        <source>How many rows the track list shows</source>
        <translation>Wie viele Zeilen die Titelliste zeigt</translation>
    </message>
    <message>
        <source>Which buttons or slider lead to a letter of the albums</source>
        <translation>Welche Schaltflächen oder welcher Schieber zu einem Buchstaben der Alben führt</translation>
    </message>
    <message>
        <source>The Skin that is loaded; choosing another one loads it</source>
        <translation>Der geladene Skin; ein anderer wird beim Wählen geladen</translation>
    </message>
    <message>
        <source>How many album covers are shown</source>
        <translation>Wie viele Album-Cover gezeigt werden</translation>
    </message>
    <message>
        <source>Whether the genres have icons or thumbnails</source>
        <translation>Ob die Genres Symbole oder kleine Bilder haben</translation>
    </message>
    <message>
        <source>Which screen has the buttons that turn the pages</source>
        <translation>Welcher Bildschirm die Schaltflächen zum Blättern hat</translation>
    </message>
    <message>
        <source>How many genres are shown</source>
        <translation>Wie viele Genres gezeigt werden</translation>
    </message>
    <message>
        <source>Has no effect and isn&apos;t saved; the screen that counts is Default HOME Screen</source>
        <translation>Hat keine Wirkung und wird nicht gespeichert; es zählt Default HOME Screen</translation>
    </message>
    <message>
        <source>The screen that the jukebox goes back to</source>
        <translation>Der Bildschirm, zu dem die Jukebox zurückkehrt</translation>
    </message>
    <message>
        <source>Whether the player pops up, and whether it has buttons</source>
        <translation>Ob der Player aufklappt und ob er Schaltflächen hat</translation>
    </message>
    <message>
        <source>How the jukebox leads to a genre&apos;s letter; on the canvas Genre Style decides</source>
        <translation>Wie die Jukebox zum Buchstaben eines Genres führt; auf der Arbeitsfläche entscheidet Genre Style</translation>
    </message>
    <message>
        <source>How many other albums the track listing shows; row 10 changes nothing on the canvas</source>
        <translation>Wie viele andere Alben die Titelliste zeigt; Zeile 10 ändert auf der Arbeitsfläche nichts</translation>
    </message>
    <message>
        <source>Albums as texts without covers; choose the number of covers anew to see it</source>
        <translation>Alben als Texte ohne Cover; zu sehen, wenn die Zahl der Cover neu gewählt wird</translation>
    </message>
    <message>
        <source>For the jukebox; nothing changes on the canvas</source>
        <translation>Für die Jukebox; auf der Arbeitsfläche ändert sich nichts</translation>
    </message>
    <message>
        <source>Covers&apos; captions without a ground; seen when the cover file is loaded again</source>
        <translation>Beschriftungen der Cover ohne Hintergrund; zu sehen, wenn die Cover-Datei neu geladen wird</translation>
    </message>
    <message>
        <source>A frame around each cover; seen when the cover file is loaded again</source>
        <translation>Ein Rahmen um jedes Cover; zu sehen, wenn die Cover-Datei neu geladen wird</translation>
    </message>
    <message>
        <source>Show the year and the genre at each cover</source>
        <translation>Jahr und Genre bei jedem Cover zeigen</translation>
    </message>
    <message>
        <source>Show the featured album</source>
        <translation>Das empfohlene Album zeigen</translation>
    </message>
    <message>
        <source>The collections stay up when another screen is chosen</source>
        <translation>Die Sammlungen bleiben stehen, wenn ein anderer Bildschirm gewählt wird</translation>
    </message>
    <message>
        <source>Show names under the other albums of the track listing</source>
        <translation>Namen unter den anderen Alben der Titelliste zeigen</translation>
    </message>
    <message>
        <source>The genre selection stays up when another screen is chosen</source>
        <translation>Die Genre-Auswahl bleibt stehen, wenn ein anderer Bildschirm gewählt wird</translation>
    </message>
    <message>
        <source>Pixels; sizes the canvas window and moves no element</source>
        <translation>Pixel; ändert die Größe der Arbeitsfläche und verschiebt kein Element</translation>
    </message>
    <message>
        <source>The name that the cover layout is saved under</source>
        <translation>Der Name, unter dem das Cover-Layout gespeichert wird</translation>
    </message>
    <message>
        <source>Click to load a cover layout; double-click to load it without a question</source>
        <translation>Klicken lädt ein Cover-Layout, Doppelklicken ohne Rückfrage</translation>
    </message>
    <message>
        <source>Write the cover layout under this name at once</source>
        <translation>Das Cover-Layout sofort unter diesem Namen schreiben</translation>
    </message>
    <message>
        <source>Write the record files of the Skin</source>
        <translation>Die Datensatzdateien des Skins schreiben</translation>
    </message>
    <message>
        <source>Choose the picture of this screen</source>
        <translation>Das Bild dieses Bildschirms wählen</translation>
    </message>
    <message>
        <source>Choose the backdrop of the albums; the canvas doesn&apos;t show it</source>
        <translation>Den Hintergrund der Alben wählen; die Arbeitsfläche zeigt ihn nicht</translation>
    </message>
    <message>
        <source>Choose the frame of the albums; the canvas doesn&apos;t show it</source>
        <translation>Den Rahmen der Alben wählen; die Arbeitsfläche zeigt ihn nicht</translation>
    </message>
    <message>
        <source>Choose the picture of the player</source>
        <translation>Das Bild des Players wählen</translation>
    </message>
    <message>
        <source>Choose the picture of the logo</source>
        <translation>Das Bild des Logos wählen</translation>
    </message>
    <message>
        <source>The picture of the menu; it can&apos;t be chosen here, only grabbed</source>
        <translation>Das Bild des Menüs; hier nicht zu wählen, nur auszuschneiden</translation>
    </message>
    <message>
        <source>Choose the picture of the frame whose number stands below</source>
        <translation>Das Bild des Rahmens wählen, dessen Nummer darunter steht</translation>
    </message>
    <message>
        <source>The album frame that is shown here and gets the next picture</source>
        <translation>Der Album-Rahmen, der hier gezeigt wird und das nächste Bild erhält</translation>
    </message>
    <message>
        <source>Choose the picture of this album frame</source>
        <translation>Das Bild dieses Album-Rahmens wählen</translation>
    </message>
    <message>
        <source>Cut the pictures of the player and the menu out of the backdrop</source>
        <translation>Die Bilder von Player und Menü aus dem Hintergrund ausschneiden</translation>
    </message>
    <message>
        <source>Give the picture of this frame to all album frames</source>
        <translation>Das Bild dieses Rahmens allen Album-Rahmen geben</translation>
    </message>
    <message>
        <source>Caption of %1</source>
        <translation>Beschriftung (%1)</translation>
    </message>
    <message>
        <source>Colour of %1: a number, &amp;H and hexadecimal digits, or # and six of them, whose pairs are read in the order first, third, second: #112233 is blue 11, green 33, red 22</source>
        <translation>Farbe (%1): eine Zahl, &amp;H mit hexadezimalen Ziffern oder # mit sechs davon, deren Paare in der Folge erstes, drittes, zweites gelesen werden: #112233 ist Blau 11, Grün 33, Rot 22</translation>
    </message>
    <message>
        <source>Height of %1, in twips: 1440 to the inch</source>
        <translation>Höhe (%1) in Twips: 1440 je Zoll</translation>
    </message>
    <message>
        <source>Width of %1, in twips: 1440 to the inch</source>
        <translation>Breite (%1) in Twips: 1440 je Zoll</translation>
    </message>
    <message>
        <source>Font size of %1, in points</source>
        <translation>Schriftgröße (%1) in Punkt</translation>
    </message>
    <message>
        <source>By how much Shift X moves, in twips</source>
        <translation>Um wie viel Shift X verschiebt, in Twips</translation>
    </message>
    <message>
        <source>By how much Shift Y moves, in twips</source>
        <translation>Um wie viel Shift Y verschiebt, in Twips</translation>
    </message>
    <message>
        <source>The gap for Space X and Space Y, in twips</source>
        <translation>Der Abstand für Space X und Space Y, in Twips</translation>
    </message>
    <message>
        <source>Has no effect: Space Y takes X Space as well</source>
        <translation>Hat keine Wirkung: auch Space Y nimmt X Space</translation>
    </message>
    <message>
        <source>The width that the Skin is rescaled to, in pixels</source>
        <translation>Die Breite, auf die der Skin umskaliert wird, in Pixeln</translation>
    </message>
    <message>
        <source>The height that the Skin is rescaled to, in pixels</source>
        <translation>Die Höhe, auf die der Skin umskaliert wird, in Pixeln</translation>
    </message>
    <message>
        <source>Top of %1, in twips: 1440 to the inch</source>
        <translation>Oberkante (%1) in Twips: 1440 je Zoll</translation>
    </message>
    <message>
        <source>Left of %1, in twips: 1440 to the inch</source>
        <translation>Linke Kante (%1) in Twips: 1440 je Zoll</translation>
    </message>
    <message>
        <source>The step of Snap To Grid across, in twips</source>
        <translation>Die waagerechte Weite von Snap To Grid, in Twips</translation>
    </message>
    <message>
        <source>The step of Snap To Grid down, in twips</source>
        <translation>Die senkrechte Weite von Snap To Grid, in Twips</translation>
    </message>
    <message>
        <source>Shape of %1</source>
        <translation>Form (%1)</translation>
    </message>
    <message>
        <source>Style of %1</source>
        <translation>Stil (%1)</translation>
    </message>
    <message>
        <source>Gradient of %1; Copy Colours copies it too</source>
        <translation>Farbverlauf (%1); Copy Colours kopiert ihn mit</translation>
    </message>
    <message>
        <source>Alignment of %1</source>
        <translation>Ausrichtung (%1)</translation>
    </message>
    <message>
        <source>The screen that the canvas shows</source>
        <translation>Der Bildschirm, den die Arbeitsfläche zeigt</translation>
    </message>
    <message>
        <source>Font of %1</source>
        <translation>Schrift (%1)</translation>
    </message>
    <message>
        <source>Work on the colour of texts</source>
        <translation>Die Farbe von Texten bearbeiten</translation>
    </message>
    <message>
        <source>Work on the colour of grounds</source>
        <translation>Die Farbe von Hintergründen bearbeiten</translation>
    </message>
    <message>
        <source>Work on the second colour of buttons</source>
        <translation>Die zweite Farbe von Schaltflächen bearbeiten</translation>
    </message>
    <message>
        <source>Click to choose the colour of what a key has highlighted</source>
        <translation>Klicken, um die Farbe dessen zu wählen, was eine Taste hervorhebt</translation>
    </message>
    <message>
        <source>Click to choose the colour of %1</source>
        <translation>Klicken, um die Farbe zu wählen (%1)</translation>
    </message>
    <message>
        <source>Click to take this sample in hand</source>
        <translation>Klicken, um dieses Muster zum aktuellen Element zu machen</translation>
    </message>
    <message>
        <source>Shows the font</source>
        <translation>Zeigt die Schrift</translation>
    </message>
    <message>
        <source>Whether the captions of the album covers have a ground</source>
        <translation>Ob die Beschriftungen der Album-Cover einen Hintergrund haben</translation>
    </message>
    <message>
        <source>The rescale also resamples the pictures of the Skin, in their files</source>
        <translation>Das Umskalieren rechnet auch die Bilder des Skins um, in ihren Dateien</translation>
    </message>
    <message>
        <source>Give this font size to the other %2 of the family of what is in hand</source>
        <translation>Diese Schriftgröße für alle anderen %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give this font size to all labels of all screens that take it</source>
        <translation>Diese Schriftgröße für alle Textfelder aller Bildschirme, die sie annehmen</translation>
    </message>
    <message>
        <source>Give the chosen colour to all %2 of the family of what is in hand</source>
        <translation>Die gewählte Farbe für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give the chosen colour to all elements of all screens that take it</source>
        <translation>Die gewählte Farbe für alle Elemente aller Bildschirme, die sie annehmen</translation>
    </message>
    <message>
        <source>Give shape and style to all %2 of the family of what is in hand</source>
        <translation>Form und Stil für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give this font to the other %2 of the family of what is in hand</source>
        <translation>Diese Schrift für alle anderen %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give this font to all labels of all screens that take it</source>
        <translation>Diese Schrift für alle Textfelder aller Bildschirme, die sie annehmen</translation>
    </message>
    <message>
        <source>Give this height and width to all %2 of the family of what is in hand</source>
        <translation>Diese Höhe und Breite für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Move all %2 of the family of what is in hand across by X Shift</source>
        <translation>Alle %2 der Familie des aktuellen Elements waagerecht um X Shift verschieben</translation>
    </message>
    <message>
        <source>Move all %2 of the family of what is in hand down by Y Shift</source>
        <translation>Alle %2 der Familie des aktuellen Elements senkrecht um Y Shift verschieben</translation>
    </message>
    <message>
        <source>Take their pictures from all %2 of the family of what is in hand</source>
        <translation>Die Bilder aller %2 der Familie des aktuellen Elements entfernen</translation>
    </message>
    <message>
        <source>Give its left edge to all %2 of the family of what is in hand</source>
        <translation>Dieselbe linke Kante für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give its top edge to all %2 of the family of what is in hand</source>
        <translation>Dieselbe Oberkante für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Set all %2 of the family of what is in hand side by side with X Space between</source>
        <translation>Alle %2 der Familie des aktuellen Elements nebeneinander setzen, mit X Space dazwischen</translation>
    </message>
    <message>
        <source>Set all %2 of the family of what is in hand one below the other with X Space between</source>
        <translation>Alle %2 der Familie des aktuellen Elements untereinander setzen, mit X Space dazwischen</translation>
    </message>
    <message>
        <source>Give the whole Skin this width and height</source>
        <translation>Dem ganzen Skin diese Breite und Höhe geben</translation>
    </message>
    <message>
        <source>Give this alignment to all %2 of the family of what is in hand</source>
        <translation>Diese Ausrichtung für alle %2 der Familie des aktuellen Elements</translation>
    </message>
    <message>
        <source>Give this top and left to the first twelve screens</source>
        <translation>Diese obere und linke Kante für die ersten zwölf Bildschirme</translation>
    </message>
    <message>
        <source>Set all %2 of the family of what is in hand onto the grid of X Grid and Y Grid</source>
        <translation>Alle %2 der Familie des aktuellen Elements auf das Raster aus X Grid und Y Grid setzen</translation>
    </message>
    <message>
        <source>Choose font, size and effects of %1</source>
        <translation>Schrift, Größe und Effekte wählen (%1)</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Cover files</source>
        <translation>Cover-Dateien</translation>
    </message>
    <message>
        <source>there is no cover %1</source>
        <translation>es gibt kein Cover %1</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>en</source>
        <extracomment>The folder of the manual&apos;s pages in the language of the translation</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Place and Size</source>
        <translation>Ort und Größe</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Stacking</source>
        <translation>Stapelreihenfolge</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Looks</name>
    <message>
        <source>Black with blue light, the menu at the left</source>
        <translation>Schwarz mit blauem Licht, das Menü links</translation>
    </message>
    <message>
        <source>The highest contrast, thick edges and nothing behind the texts, for the hard of seeing</source>
        <translation>Höchster Kontrast, dicke Ränder und nichts hinter den Texten, für Menschen mit Sehschwäche</translation>
    </message>
    <message>
        <source>Warm copper with sloping buttons, the menu at the foot</source>
        <translation>Warmes Kupfer mit schrägen Schaltflächen, das Menü unten</translation>
    </message>
    <message>
        <source>A light ground with coloured bars, the menu at the right</source>
        <translation>Heller Grund mit farbigen Balken, das Menü rechts</translation>
    </message>
    <message>
        <source>Glowing lines on the night, outlined buttons, the menu at the foot</source>
        <translation>Leuchtende Linien in der Nacht, umrandete Schaltflächen, das Menü unten</translation>
    </message>
    <message>
        <source>Planks of wood with brass keys and paper fields, the menu at the left</source>
        <translation>Holzbretter mit Messingtasten und Papierfeldern, das Menü links</translation>
    </message>
    <message>
        <source>Flat and light, one strong colour, the menu on top</source>
        <translation>Flach und hell, eine kräftige Farbe, das Menü oben</translation>
    </message>
    <message>
        <source>For upright screens: flowing curves, rounded buttons, the menu under the thumbs</source>
        <translation>Für Hochkant-Bildschirme: fließende Kurven, abgerundete Schaltflächen, das Menü unter den Daumen</translation>
    </message>
    <message>
        <source>The ground colour %1 becomes %2: no text could be read on it.</source>
        <translation>Die Hintergrundfarbe %1 wird zu %2: kein Text wäre darauf lesbar.</translation>
    </message>
    <message>
        <source>The text colour %1 becomes %2: it could not be read on the ground.</source>
        <translation>Die Textfarbe %1 wird zu %2: sie wäre auf dem Hintergrund nicht lesbar.</translation>
    </message>
    <message>
        <source>a Skin has from 640 x 480 to 3840 x 3840 pixels</source>
        <translation>ein Skin hat zwischen 640 x 480 und 3840 x 3840 Pixel</translation>
    </message>
    <message>
        <source>a Skin&apos;s proportions are from 9:16 to 21:9</source>
        <translation>ein Skin hat Seitenverhältnisse von 9:16 bis 21:9</translation>
    </message>
    <message>
        <source>%1: no Skin is made: %2</source>
        <translation>%1: kein Skin angelegt: %2</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The folder that holds &quot;Skins&quot; and &quot;images&quot;. Without it the one of the program itself, where there are Skins in it, else that of the user.</source>
        <translation>Der Ordner mit „Skins“ und „images“. Ohne diese Angabe der des Programms selbst, wenn Skins darin liegen, sonst der des Benutzers.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>The language of the texts, &quot;en&quot; or &quot;de&quot;. Without it the one that is chosen in the menu Help, else the desktop&apos;s.</source>
        <translation>Die Sprache der Texte, „en“ oder „de“. Ohne diese Angabe die im Menü Hilfe gewählte, sonst die der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>The folder of a Skin, which is opened without a question.</source>
        <translation>Der Ordner eines Skins, der ohne Rückfrage geöffnet wird.</translation>
    </message>
    <message>
        <source>one Skin at most can be opened</source>
        <translation>höchstens ein Skin lässt sich öffnen</translation>
    </message>
    <message>
        <source>there are no texts in the language %1</source>
        <translation>in der Sprache %1 gibt es keine Texte</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>es gibt keinen Ordner %1</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>In File Controls/Settings, type a plain file name that ends in .cov for the cover layout first.</source>
        <translation>Zuerst in File Controls/Settings einen einfachen Dateinamen für das Cover-Layout eintippen, der auf .cov endet.</translation>
    </message>
    <message>
        <source>the panel has no size that a picture can have</source>
        <translation>das Feld hat keine Größe, die ein Bild haben kann</translation>
    </message>
    <message>
        <source>The album view has no picture to grab from.</source>
        <translation>Die Albenansicht hat kein Bild zum Ausschneiden.</translation>
    </message>
    <message>
        <source>A canvas of so many pixels is too large; it keeps its size.</source>
        <translation>Eine Arbeitsfläche mit so vielen Pixeln ist zu groß; sie behält ihre Größe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no picture that can be shown.</source>
        <translation>„%1“ ist kein Bild, das sich zeigen lässt.</translation>
    </message>
</context>
<context>
    <name>Platform</name>
    <message>
        <source>The Skins that come with the program can&apos;t be copied to %1: %2: %3.</source>
        <translation>Die mitgelieferten Skins lassen sich nicht nach %1 kopieren: %2: %3.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that the page is in</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>All screens</source>
        <translation>Alle Bildschirme</translation>
    </message>
    <message>
        <source>The left and right arrow keys leaf through the screens; the buttons of the menu lead to theirs.</source>
        <translation>Die Pfeiltasten links und rechts blättern durch die Bildschirme; die Schaltflächen des Menüs führen zu ihren.</translation>
    </message>
    <message>
        <source>%1 as the jukebox shows it</source>
        <translation>%1, wie die Jukebox ihn zeigt</translation>
    </message>
    <message>
        <source>Neighbours</source>
        <translation>Nachbarn</translation>
    </message>
    <message>
        <source>Previous: %1</source>
        <translation>Voriger: %1</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Nächster: %1</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>the Skin&apos;s folder is gone</source>
        <translation>der Ordner des Skins ist nicht mehr da</translation>
    </message>
    <message>
        <source>a file of this name is there by now</source>
        <translation>eine Datei dieses Namens gibt es inzwischen</translation>
    </message>
    <message>
        <source>the picture to be copied can&apos;t be read</source>
        <translation>das zu kopierende Bild ist nicht lesbar</translation>
    </message>
    <message>
        <source>Replace the caption by &quot;%1&quot;: a low quotation mark looks like the comma</source>
        <translation>Die Beschriftung durch „%1“ ersetzen: ein unteres Anführungszeichen sieht wie das Komma aus</translation>
    </message>
    <message>
        <source>Replace the caption by &quot;%1&quot;</source>
        <translation>Die Beschriftung durch „%1“ ersetzen</translation>
    </message>
    <message>
        <source>caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>no record file is here</source>
        <translation>hier ist keine Datensatzdatei</translation>
    </message>
    <message>
        <source>there are too many cover files: %1 not checked</source>
        <translation>zu viele Cover-Dateien: %1 nicht geprüft</translation>
    </message>
    <message>
        <source>of so large a canvas only %1 x %2 pixels are drawn</source>
        <translation>von einer so großen Arbeitsfläche werden nur %1 x %2 Pixel gezeichnet</translation>
    </message>
    <message>
        <source>all images together take too long to decode: %1 not tried</source>
        <translation>alle Bilder zusammen brauchen zu lange: %1 nicht versucht</translation>
    </message>
    <message>
        <source>the shape comes from a picture, and there is none: the next load sets it to 0</source>
        <translation>die Form kommt von einem Bild, und es gibt keins: das nächste Laden setzt sie auf 0</translation>
    </message>
    <message>
        <source>Set the shape to 0, a rectangle</source>
        <translation>Die Form auf 0 setzen, ein Rechteck</translation>
    </message>
    <message>
        <source>has %1 lines where the format has %2</source>
        <translation>hat %1 Zeilen, das Format hat %2</translation>
    </message>
    <message>
        <source>stops before an optional block, at %1 of %2 lines</source>
        <translation>endet vor einem optionalen Block, bei %1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>a byte order mark counts as text</source>
        <translation>eine Byte-Order-Marke zählt als Text</translation>
    </message>
    <message>
        <source>the button is %1 pixels wide, a finger needs %2</source>
        <translation>die Schaltfläche ist %1 Pixel breit, ein Finger braucht %2</translation>
    </message>
    <message>
        <source>the button is %1 pixels high, a finger needs %2</source>
        <translation>die Schaltfläche ist %1 Pixel hoch, ein Finger braucht %2</translation>
    </message>
    <message>
        <source>it lies partly outside %1</source>
        <translation>es liegt teilweise außerhalb von %1</translation>
    </message>
    <message>
        <source>it lies wholly outside %1</source>
        <translation>es liegt ganz außerhalb von %1</translation>
    </message>
    <message>
        <source>%1 hides all of it</source>
        <translation>%1 verdeckt es ganz</translation>
    </message>
    <message>
        <source>the caption &quot;%1&quot; doesn&apos;t fit: it needs %2 pixels across of %3</source>
        <translation>die Beschriftung „%1“ passt nicht: sie braucht waagerecht %2 Pixel von %3</translation>
    </message>
    <message>
        <source>the caption &quot;%1&quot; doesn&apos;t fit: it needs %2 pixels down of %3</source>
        <translation>die Beschriftung „%1“ passt nicht: sie braucht senkrecht %2 Pixel von %3</translation>
    </message>
    <message>
        <source>this machine has no font &quot;%1&quot;</source>
        <translation>dieser Rechner hat keine Schrift „%1“</translation>
    </message>
    <message>
        <source>its picture is %1 pixels, the element %2</source>
        <translation>sein Bild hat %1 Pixel, das Element %2</translation>
    </message>
    <message>
        <source>the caption &quot;%1&quot; has a contrast of %2 to what lies beneath, %3 is the least</source>
        <translation>die Beschriftung „%1“ hat einen Kontrast von %2 zum Untergrund, mindestens %3 sind nötig</translation>
    </message>
    <message>
        <source>isn&apos;t in this Skin: what it would hold is still as in the Skin before</source>
        <translation>fehlt in diesem Skin: was darin stünde, ist noch wie im Skin zuvor</translation>
    </message>
    <message>
        <source>isn&apos;t read when the Skin is changed: what it holds is still as in the Skin before</source>
        <translation>wird beim Wechsel des Skins nicht gelesen: was darin steht, ist noch wie im Skin zuvor</translation>
    </message>
    <message>
        <source>no cover file is read when the Skin is changed: the covers are still as in the Skin before</source>
        <translation>beim Wechsel des Skins wird keine Cover-Datei gelesen: die Cover sind noch wie im Skin zuvor</translation>
    </message>
    <message>
        <source>%1 shows a picture of another Skin: %2</source>
        <translation>%1 zeigt ein Bild eines anderen Skins: %2</translation>
    </message>
    <message>
        <source>Copy %1 into the Skin: writes %2</source>
        <translation>%1 in den Skin kopieren: schreibt %2</translation>
    </message>
    <message>
        <source>Use the name that a load finds: %1</source>
        <translation>Den Namen verwenden, den das Laden findet: %1</translation>
    </message>
    <message>
        <source>Found as %1: use it</source>
        <translation>Gefunden als %1: dieses verwenden</translation>
    </message>
    <message>
        <source>image reference</source>
        <translation>Bildverweis</translation>
    </message>
    <message>
        <source>the image &quot;%1&quot; is missing</source>
        <translation>das Bild „%1“ fehlt</translation>
    </message>
    <message>
        <source>the image &quot;%1&quot; is missing: code page 1252 can&apos;t hold the name of &quot;%2&quot;</source>
        <translation>das Bild „%1“ fehlt: Codepage 1252 kann den Namen von „%2“ nicht darstellen</translation>
    </message>
    <message>
        <source>the image &quot;%1&quot; lies outside the Skin&apos;s folder</source>
        <translation>das Bild „%1“ liegt außerhalb des Skin-Ordners</translation>
    </message>
    <message>
        <source>the image &quot;%1&quot; can&apos;t be decoded</source>
        <translation>das Bild „%1“ lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>the image &quot;%1&quot; is named by its full path, which doesn&apos;t travel with the Skin</source>
        <translation>das Bild „%1“ ist mit vollem Pfad genannt, der auf anderen Rechnern nicht gilt</translation>
    </message>
    <message>
        <source>label line</source>
        <translation>Kennzeile</translation>
    </message>
    <message>
        <source>font name</source>
        <translation>Schriftname</translation>
    </message>
    <message>
        <source>font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; comes back as &quot;%3&quot;</source>
        <translation>%1 „%2“ kommt als „%3“ zurück</translation>
    </message>
    <message>
        <source>the %1 %2 loses its quotes</source>
        <translation>%1 %2 verliert die Anführungszeichen</translation>
    </message>
    <message>
        <source>%1; then %2</source>
        <translation>%1; dann %2</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>is no record file that is ever read</source>
        <translation>ist keine Datensatzdatei, die je gelesen wird</translation>
    </message>
    <message>
        <source>is never read: the name is spelt %1</source>
        <translation>wird nie gelesen: der Name schreibt sich %1</translation>
    </message>
    <message>
        <source>reads like a cover file, but only names that end in .cov are listed</source>
        <translation>liest sich wie eine Cover-Datei, aber nur Namen mit der Endung .cov werden aufgelistet</translation>
    </message>
    <message>
        <source>a line end cuts the %1 &quot;%2&quot;</source>
        <translation>ein Zeilenende schneidet ab: %1 „%2“</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; begins with a double quote and doesn&apos;t come back</source>
        <translation>%1 „%2“ beginnt mit einem Anführungszeichen und kommt nicht zurück</translation>
    </message>
    <message>
        <source>a comma cuts the %1 &quot;%2&quot;</source>
        <translation>ein Komma schneidet ab: %1 „%2“</translation>
    </message>
    <message>
        <source>the next load fails on the %1 &quot;%2&quot;</source>
        <translation>das nächste Laden scheitert: %1 „%2“</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; comes back as &quot;%3&quot;: code page 1252 can&apos;t hold it</source>
        <translation>%1 „%2“ kommt als „%3“ zurück: Codepage 1252 reicht nicht aus</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; loses its leading blanks</source>
        <translation>%1 „%2“ verliert die Leerzeichen am Anfang</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; is &quot;%3&quot; in UTF-8, where code page 1252 is due</source>
        <translation>%1 „%2“ ist „%3“ in UTF-8, gebraucht wird Codepage 1252</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; holds the byte %3 (hexadecimal), for which code page 1252 has no character</source>
        <translation>%1 „%2“ enthält das Byte %3 (hexadezimal), für das Codepage 1252 kein Zeichen hat</translation>
    </message>
    <message>
        <source>a double quote at the start isn&apos;t part of the text</source>
        <translation>ein Anführungszeichen am Anfang gehört nicht zum Text</translation>
    </message>
    <message>
        <source>a comma ends the text, and its rest spoils the file</source>
        <translation>ein Komma beendet den Text, und der Rest verdirbt die Datei</translation>
    </message>
    <message>
        <source>the file can&apos;t hold every character of it</source>
        <translation>die Datei kann nicht jedes Zeichen davon aufnehmen</translation>
    </message>
    <message>
        <source>blanks at the start are dropped</source>
        <translation>Leerzeichen am Anfang entfallen</translation>
    </message>
    <message>
        <source>it is read as a value of another kind</source>
        <translation>er wird als Wert anderer Art gelesen</translation>
    </message>
    <message>
        <source>After a save no load would take this text.</source>
        <translation>Nach dem Speichern ließe sich dieser Text nicht mehr laden.</translation>
    </message>
    <message>
        <source>After a save &quot;%1&quot; would come back: %2.</source>
        <translation>Nach dem Speichern käme „%1“ zurück: %2.</translation>
    </message>
    <message>
        <source>nothing in the Skin names this file</source>
        <translation>nichts im Skin nennt diese Datei</translation>
    </message>
    <message>
        <source>Set the resolution to %1</source>
        <translation>Die Auflösung auf %1 setzen</translation>
    </message>
    <message>
        <source>the resolution is %1, the canvas %2 pixels</source>
        <translation>die Auflösung ist %1, die Arbeitsfläche hat %2 Pixel</translation>
    </message>
    <message>
        <source>its covers are placed for %1 pixels: no rescale changes a cover file</source>
        <translation>die Cover darin sind für %1 Pixel gesetzt: kein Umskalieren ändert eine Cover-Datei</translation>
    </message>
    <message>
        <source>Copy %1 over it: writes %2</source>
        <translation>%1 darüberkopieren: schreibt %2</translation>
    </message>
    <message>
        <source>differs from %1, which a save writes and no load reads</source>
        <translation>weicht von %1 ab, das gespeichert und nie geladen wird</translation>
    </message>
</context>
<context>
    <name>Recolouring</name>
    <message>
        <source>it is no picture that can be read</source>
        <translation>kein lesbares Bild</translation>
    </message>
    <message>
        <source>icons aren&apos;t turned</source>
        <translation>Icons werden nicht umgefärbt</translation>
    </message>
    <message>
        <source>it can&apos;t be decoded</source>
        <translation>nicht zu dekodieren</translation>
    </message>
    <message>
        <source>its format can&apos;t hold the picture any more</source>
        <translation>das Format kann das Bild nicht mehr aufnehmen</translation>
    </message>
</context>
<context>
    <name>Records</name>
    <message>
        <source>%1 is a value that no field takes</source>
        <translation>%1 ist ein Wert, den kein Feld nimmt</translation>
    </message>
    <message>
        <source>a number is due here, but &quot;%1&quot; stands in its place</source>
        <translation>hier gehört eine Zahl hin, aber „%1“ steht an ihrer Stelle</translation>
    </message>
    <message>
        <source>image reference</source>
        <translation>Bildverweis</translation>
    </message>
    <message>
        <source>label line</source>
        <translation>Kennzeile</translation>
    </message>
    <message>
        <source>the file ends where a value is due</source>
        <translation>die Datei endet, wo ein Wert hingehört</translation>
    </message>
    <message>
        <source>the number %1 is out of the field&apos;s range</source>
        <translation>die Zahl %1 liegt außerhalb des Bereichs des Feldes</translation>
    </message>
    <message>
        <source>the file isn&apos;t there</source>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>two</source>
        <translation>zwei</translation>
    </message>
    <message>
        <source>three</source>
        <translation>drei</translation>
    </message>
    <message>
        <source>four</source>
        <translation>vier</translation>
    </message>
    <message>
        <source>five</source>
        <translation>fünf</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sechs</translation>
    </message>
    <message>
        <source>the caption in the label line</source>
        <translation>die Beschriftung in der Kennzeile</translation>
    </message>
    <message>
        <source>the label line</source>
        <translation>die Kennzeile</translation>
    </message>
    <message>
        <source>the image&apos;s name</source>
        <translation>der Name des Bildes</translation>
    </message>
    <message>
        <source>the number</source>
        <translation>die Zahl</translation>
    </message>
    <message>
        <source>the caption</source>
        <translation>die Beschriftung</translation>
    </message>
    <message>
        <source>the font&apos;s name</source>
        <translation>der Name der Schrift</translation>
    </message>
    <message>
        <source>the text</source>
        <translation>der Text</translation>
    </message>
    <message>
        <source>%1 on line %2 (%3)</source>
        <translation>%1 in Zeile %2 (%3)</translation>
    </message>
    <message>
        <source>%1 on line %2, one line up (%3)</source>
        <translation>%1 in Zeile %2, eine Zeile höher (%3)</translation>
    </message>
    <message>
        <source>%1 on line %2, %3 lines up (%4)</source>
        <translation>%1 in Zeile %2, %3 Zeilen höher (%4)</translation>
    </message>
    <message>
        <source>a double quote opens in %1 and takes in the lines behind it</source>
        <translation>%1: ein Anführungszeichen öffnet sich dort und schließt die Zeilen dahinter ein</translation>
    </message>
    <message>
        <source>a comma in %1; a number takes a full stop</source>
        <translation>%1: ein Komma; eine Zahl hat einen Punkt</translation>
    </message>
    <message>
        <source>a comma in %1, which ends the value and shifts all behind it</source>
        <translation>%1: ein Komma beendet den Wert und verschiebt alles dahinter</translation>
    </message>
    <message>
        <source>one line too many between line %1 and line %2</source>
        <translation>eine Zeile zu viel zwischen Zeile %1 und Zeile %2</translation>
    </message>
    <message>
        <source>one missing line between line %1 and line %2</source>
        <translation>eine fehlende Zeile zwischen Zeile %1 und Zeile %2</translation>
    </message>
    <message>
        <source>%3 lines too many between line %1 and line %2</source>
        <translation>%3 Zeilen zu viel zwischen Zeile %1 und Zeile %2</translation>
    </message>
    <message>
        <source>%3 missing lines between line %1 and line %2</source>
        <translation>%3 fehlende Zeilen zwischen Zeile %1 und Zeile %2</translation>
    </message>
    <message>
        <source>the file is cut off: it has %1 of %2 lines</source>
        <translation>die Datei ist abgeschnitten: sie hat %1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>a byte order mark at the file&apos;s start, which counts as text</source>
        <translation>eine Byte-Order-Marke am Anfang der Datei, die als Text zählt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>Likely cause</source>
        <translation>Wahrscheinliche Ursache</translation>
    </message>
    <message>
        <source>a file of this name is there and too large for a record file</source>
        <translation>eine Datei dieses Namens gibt es, zu groß für eine Datensatzdatei</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Saved in %1: %2, %3 changed.</source>
        <translation>In %1 gespeichert: %2, %3 geändert.</translation>
    </message>
    <message>
        <source>the file can&apos;t be written: %1</source>
        <translation>die Datei lässt sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>Nothing is written. </source>
        <translation>Nichts wird geschrieben. </translation>
    </message>
</context>
<context>
    <name>Skin</name>
    <message>
        <source>No save can write %1: %2.</source>
        <translation>%1 kann beim Speichern nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>can&apos;t be written (%1)</source>
        <translation>nicht zu schreiben (%1)</translation>
    </message>
    <message>
        <source>can&apos;t be decoded</source>
        <translation>nicht zu dekodieren</translation>
    </message>
    <message>
        <source>can&apos;t have %1 by %2 pixels</source>
        <translation>%1 mal %2 Pixel nicht möglich</translation>
    </message>
    <message>
        <source>Not rescaled are: the resolution, the cover files but the layout in hand, the pictures of the screens from &quot;No Search Results Found&quot; on, the fonts of buttons.</source>
        <translation>Nicht umskaliert sind: die Auflösung, die Cover-Dateien außer dem aktuellen Layout, die Bilder der Bildschirme ab „No Search Results Found“, die Schriften von Schaltflächen.</translation>
    </message>
    <message>
        <source>%1 of %2 images were resized</source>
        <translation>%1 von %2 Bildern wurden umgerechnet</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>outside the Skin&apos;s folder</source>
        <translation>außerhalb des Skin-Ordners</translation>
    </message>
    <message>
        <source>Nothing is rescaled: %1.</source>
        <translation>Nichts wird umskaliert: %1.</translation>
    </message>
    <message>
        <source>width and height must be above 0 pixels</source>
        <translation>Breite und Höhe müssen über 0 Pixeln liegen</translation>
    </message>
    <message>
        <source>the new size is beyond 32 bits</source>
        <translation>die neue Größe übersteigt 32 Bit</translation>
    </message>
    <message>
        <source>the screen is too large</source>
        <translation>der Bildschirm ist zu groß</translation>
    </message>
    <message>
        <source>a window of no size can&apos;t be scaled</source>
        <translation>ein Fenster ohne Größe lässt sich nicht skalieren</translation>
    </message>
    <message>
        <source>the scale is beyond a Single</source>
        <translation>der Maßstab liegt außerhalb des Bereichs eines Single</translation>
    </message>
    <message>
        <source>the window&apos;s size is beyond 32 bits</source>
        <translation>die Größe des Fensters übersteigt 32 Bit</translation>
    </message>
    <message>
        <source>the new size must be above 0</source>
        <translation>die neue Größe muss über 0 liegen</translation>
    </message>
    <message>
        <source>the button</source>
        <translation>Schaltfläche</translation>
    </message>
    <message>
        <source>buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>the label</source>
        <translation>Textfeld</translation>
    </message>
    <message>
        <source>labels</source>
        <translation>Textfelder</translation>
    </message>
    <message>
        <source>the picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>the screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>screens</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>the element in hand</source>
        <translation>aktuelles Element</translation>
    </message>
    <message>
        <source>%1
It serves %2; click one</source>
        <translation>%1
Gilt für %2; davon etwas anklicken</translation>
    </message>
    <message>
        <source>%1
It serves %2, but not %3</source>
        <translation>%1
Gilt für %2, aber nicht für %3</translation>
    </message>
</context>
<context>
    <name>Ui</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Put this text on the clipboard</source>
        <translation>Diesen Text in die Zwischenablage legen</translation>
    </message>
    <message>
        <source>The program ends. Files that were written before stay as they are.</source>
        <translation>Das Programm endet. Zuvor geschriebene Dateien bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>&quot;Undo Move&quot;: a command and the name of the step that it is about</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Choose a Skin</source>
        <translation>Skin wählen</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>Skins</translation>
    </message>
    <message>
        <source>Skins:</source>
        <translation>Skins:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>%1 of %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Colours of this Skin</source>
        <translation>Farben dieses Skins</translation>
    </message>
    <message>
        <source>&amp;Pick from the Canvas</source>
        <translation>Von der Arbeitsfläche &amp;aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>1 difference</source>
        <translation>1 Unterschied</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 Unterschiede</translation>
    </message>
    <message>
        <source>%1 in 1 file</source>
        <translation>%1 in 1 Datei</translation>
    </message>
    <message>
        <source>%1 in %2 files</source>
        <translation>%1 in %2 Dateien</translation>
    </message>
    <message>
        <source>The picture on the first side</source>
        <translation>Das Bild der ersten Seite</translation>
    </message>
    <message>
        <source>The picture on the second side</source>
        <translation>Das Bild der zweiten Seite</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Compare with</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>What the Skin in hand is compared with</source>
        <translation>Womit der aktuelle Skin verglichen wird</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>List what differs; nothing is changed</source>
        <translation>Unterschiede auflisten; nichts wird geändert</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Click a difference to go to its screen and select its element</source>
        <translation>Einen Unterschied anklicken, um zum Bildschirm zu gehen und das Element auszuwählen</translation>
    </message>
    <message>
        <source>The disk: what a save would change</source>
        <translation>Der Datenträger: was Speichern ändern würde</translation>
    </message>
    <message>
        <source>On the Disk</source>
        <translation>Auf dem Datenträger</translation>
    </message>
    <message>
        <source>After a Save</source>
        <translation>Nach dem Speichern</translation>
    </message>
    <message>
        <source>Nothing is compared. %1</source>
        <translation>Nichts wird verglichen. %1</translation>
    </message>
    <message>
        <source>A save would change nothing.</source>
        <translation>Speichern würde nichts ändern.</translation>
    </message>
    <message>
        <source>A save would change it: %1.</source>
        <translation>Speichern würde etwas ändern: %1.</translation>
    </message>
    <message>
        <source> What isn&apos;t saved isn&apos;t compared.</source>
        <translation> Ungespeichertes wird nicht verglichen.</translation>
    </message>
    <message>
        <source>Nothing differs</source>
        <translation>Kein Unterschied</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>(differs)</source>
        <translation>(verschieden)</translation>
    </message>
    <message>
        <source>(the file is there)</source>
        <translation>(die Datei ist da)</translation>
    </message>
    <message>
        <source>(no such file)</source>
        <translation>(keine solche Datei)</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>(more isn&apos;t told, there is too much)</source>
        <translation>(mehr wird nicht gezeigt, es ist zu viel)</translation>
    </message>
    <message>
        <source>(file)</source>
        <translation>(Datei)</translation>
    </message>
    <message>
        <source>(text)</source>
        <translation>(Text)</translation>
    </message>
    <message>
        <source>&amp;Inspector</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Outline</source>
        <translation>&amp;Gliederung</translation>
    </message>
    <message>
        <source>&amp;Problems</source>
        <translation>&amp;Probleme</translation>
    </message>
    <message>
        <source>&amp;Screens</source>
        <translation>Bild&amp;schirme</translation>
    </message>
    <message>
        <source>Co&amp;mpare</source>
        <translation>Verglei&amp;chen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>As it was loaded</source>
        <translation>Wie geladen</translation>
    </message>
    <message>
        <source>Click a step to go back or forward to it</source>
        <translation>Einen Schritt anklicken, um zu ihm zurück oder vor zu gehen</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Ver&amp;lauf</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>Move what is selected into line with the first of it</source>
        <translation>Die Auswahl am ersten Element davon ausrichten</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt</source>
        <translation>&amp;Nächstes auswählen</translation>
    </message>
    <message>
        <source>Select the next element of the screen; Enter on the canvas clicks it</source>
        <translation>Das nächste Element des Bildschirms auswählen; die Eingabetaste auf der Arbeitsfläche klickt es an</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious</source>
        <translation>V&amp;origes auswählen</translation>
    </message>
    <message>
        <source>Select the element of the screen ahead; Enter on the canvas clicks it</source>
        <translation>Das vorige Element des Bildschirms auswählen; die Eingabetaste auf der Arbeitsfläche klickt es an</translation>
    </message>
    <message>
        <source>&amp;Align</source>
        <translation>&amp;Ausrichten</translation>
    </message>
    <message>
        <source>&amp;Distribute</source>
        <translation>&amp;Verteilen</translation>
    </message>
    <message>
        <source>Make the gaps of what is selected equal</source>
        <translation>Die Abstände in der Auswahl gleich machen</translation>
    </message>
    <message>
        <source>&amp;Across</source>
        <translation>&amp;Waagerecht</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Senkrecht</translation>
    </message>
    <message>
        <source>&amp;Same Size</source>
        <translation>&amp;Gleiche Größe</translation>
    </message>
    <message>
        <source>Give what is selected the size of the first of it</source>
        <translation>Der Auswahl die Größe des ersten Elements davon geben</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>Bei&amp;des</translation>
    </message>
    <message>
        <source>&amp;Lock</source>
        <translation>&amp;Sperren</translation>
    </message>
    <message>
        <source>Keep what is selected, else what is in hand, from being moved and sized</source>
        <translation>Die Auswahl, sonst das aktuelle Element, gegen Verschieben und Größenändern sperren</translation>
    </message>
    <message>
        <source>Unloc&amp;k</source>
        <translation>&amp;Entsperren</translation>
    </message>
    <message>
        <source>Let what is selected, else what is in hand, be moved and sized again</source>
        <translation>Die Auswahl, sonst das aktuelle Element, wieder verschieben und in der Größe ändern lassen</translation>
    </message>
    <message>
        <source>Select &amp;Nothing</source>
        <translation>Auswahl au&amp;fheben</translation>
    </message>
    <message>
        <source>Empty the selection on the overlay</source>
        <translation>Nichts mehr auswählen</translation>
    </message>
    <message>
        <source>Zip Archives (*.zip)</source>
        <translation>Zip-Archive (*.zip)</translation>
    </message>
    <message>
        <source>Cancelled; nothing is left of it.</source>
        <translation>Abgebrochen; nichts davon bleibt übrig.</translation>
    </message>
    <message>
        <source>A Skin&apos;s name has no slash in it and doesn&apos;t begin with a point.</source>
        <translation>Der Name eines Skins enthält keinen Schrägstrich und beginnt nicht mit einem Punkt.</translation>
    </message>
    <message>
        <source>%1: a Skin of this name is there already.</source>
        <translation>%1: einen Skin dieses Namens gibt es schon.</translation>
    </message>
    <message>
        <source>Name of the new Skin:</source>
        <translation>Name des neuen Skins:</translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation>%1 Kopie</translation>
    </message>
    <message>
        <source>Copy as New Skin</source>
        <translation>Als neuen Skin kopieren</translation>
    </message>
    <message>
        <source>New Skin</source>
        <translation>Neuer Skin</translation>
    </message>
    <message>
        <source>%1 is a new Skin, and in hand.</source>
        <translation>%1 ist ein neuer Skin und jetzt der aktuelle.</translation>
    </message>
    <message>
        <source>Export Skin</source>
        <translation>Skin exportieren</translation>
    </message>
    <message>
        <source> What isn&apos;t saved isn&apos;t in it.</source>
        <translation> Ungespeichertes ist nicht darin.</translation>
    </message>
    <message>
        <source>%1 holds the Skin.</source>
        <translation>%1 enthält den Skin.</translation>
    </message>
    <message>
        <source>Import Skin</source>
        <translation>Skin importieren</translation>
    </message>
    <message>
        <source> Left out: %1 of it, the first is %2, %3.</source>
        <translation> Weggelassen: %1, das erste ist %2, %3.</translation>
    </message>
    <message>
        <source>%1 is among the Skins now.</source>
        <translation>%1 ist jetzt unter den Skins.</translation>
    </message>
    <message>
        <source>New S&amp;kin...</source>
        <translation>&amp;Neuer Skin...</translation>
    </message>
    <message>
        <source>Draw a whole new Skin of a look, a size and three colours</source>
        <translation>Einen ganzen neuen Skin aus Look, Größe und drei Farben zeichnen</translation>
    </message>
    <message>
        <source>Copy as &amp;New Skin...</source>
        <translation>Als neuen Skin &amp;kopieren...</translation>
    </message>
    <message>
        <source>Make a new Skin of this one as it is now, and go on with that</source>
        <translation>Aus diesem Skin, wie er jetzt ist, einen neuen machen und mit ihm weiterarbeiten</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Pack the Skin as it was saved into one file</source>
        <translation>Den Skin, wie er gespeichert ist, in eine Datei packen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Put the Skin of such a file among the others</source>
        <translation>Den Skin aus einer solchen Datei zu den anderen legen</translation>
    </message>
    <message>
        <source>This machine has no &quot;%1&quot;. The label keeps it unless you choose another font.</source>
        <translation>Auf diesem Rechner fehlt die Schrift „%1“. Das Textfeld behält sie, wenn keine andere Schrift gewählt wird.</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Open the manual at its list of all pages</source>
        <translation>Das Handbuch bei der Liste aller Seiten öffnen</translation>
    </message>
    <message>
        <source>&amp;Help Here</source>
        <translation>&amp;Hilfe hierzu</translation>
    </message>
    <message>
        <source>Open the manual at the page about what has the focus</source>
        <translation>Das Handbuch bei der Seite über das öffnen, was den Fokus hat</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Look for words in all pages of the manual</source>
        <translation>Wörter in allen Seiten des Handbuchs suchen</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>on another screen</source>
        <translation>auf anderem Bildschirm</translation>
    </message>
    <message>
        <source>&amp;Go there</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Show the screen of the element in hand</source>
        <translation>Den Bildschirm des aktuellen Elements zeigen</translation>
    </message>
    <message>
        <source>Click an element to take it in hand</source>
        <translation>Ein Element anklicken, um es zum aktuellen zu machen</translation>
    </message>
    <message>
        <source>In hand: %1</source>
        <translation>Aktuelles Element: %1</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Type a value to set it; click a colour&apos;s name to choose a colour</source>
        <translation>Einen Wert eintippen, um ihn zu setzen; den Namen einer Farbe anklicken, um eine zu wählen</translation>
    </message>
    <message>
        <source>Cop&amp;y Style</source>
        <translation>Stil &amp;kopieren</translation>
    </message>
    <message>
        <source>Remember the colours, the font and the style of this element</source>
        <translation>Farben, Schrift und Stil dieses Elements merken</translation>
    </message>
    <message>
        <source>&amp;Paste Style</source>
        <translation>Stil &amp;einfügen</translation>
    </message>
    <message>
        <source>Give what is selected the style that was copied</source>
        <translation>Der Auswahl den kopierten Stil geben</translation>
    </message>
    <message>
        <source>Click an element to see its properties</source>
        <translation>Ein Element anklicken, um seine Eigenschaften zu sehen</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>(several)</source>
        <translation>(mehrere)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move what is selected, else what is in hand, by a pixel</source>
        <translation>Auswahl oder aktuelles Element ein Pixel bewegen</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Umschalt+Pfeiltasten</translation>
    </message>
    <message>
        <source>Move it by ten pixels</source>
        <translation>Um zehn Pixel verschieben</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Click what is selected, else what is in hand</source>
        <translation>Auswahl oder aktuelles Element anklicken</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Select nothing; pick no colour</source>
        <translation>Auswahl aufheben; keine Farbe aufnehmen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>List all that lies beneath the pointer</source>
        <translation>Alles auflisten, was unter dem Zeiger liegt</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>Go to the next control, or back</source>
        <translation>Zum nächsten Bedienelement oder zurück</translation>
    </message>
    <message>
        <source>Alt and a letter</source>
        <translation>Alt und ein Buchstabe</translation>
    </message>
    <message>
        <source>Go to the control or menu with that letter underlined</source>
        <translation>Zum Feld oder Menü mit diesem Buchstaben</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klicken</translation>
    </message>
    <message>
        <source>Take an element in hand; nothing is selected any more</source>
        <translation>Element zum aktuellen machen; Auswahl aufheben</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Move an element</source>
        <translation>Ein Element verschieben</translation>
    </message>
    <message>
        <source>Ctrl and drag</source>
        <translation>Strg und Ziehen</translation>
    </message>
    <message>
        <source>Move an element, snapping to what lines up</source>
        <translation>Element verschieben, an Fluchtlinien einrasten</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Einen Griff ziehen</translation>
    </message>
    <message>
        <source>Size what is in hand; with Ctrl it snaps</source>
        <translation>Größe ändern; mit Strg rastet sie ein</translation>
    </message>
    <message>
        <source>Right press</source>
        <translation>Rechte Maustaste drücken</translation>
    </message>
    <message>
        <source>Choose a button&apos;s picture</source>
        <translation>Das Bild einer Schaltfläche wählen</translation>
    </message>
    <message>
        <source>Shift and click</source>
        <translation>Umschalt und Klicken</translation>
    </message>
    <message>
        <source>Select an element, or no longer</source>
        <translation>Ein Element auswählen oder nicht mehr</translation>
    </message>
    <message>
        <source>Shift and drag</source>
        <translation>Umschalt und Ziehen</translation>
    </message>
    <message>
        <source>Select what lies in the band</source>
        <translation>Auswählen, was im Rahmen liegt</translation>
    </message>
    <message>
        <source>Ctrl and click</source>
        <translation>Strg und Klicken</translation>
    </message>
    <message>
        <source>List all that lies beneath, hidden elements too</source>
        <translation>Alles darunter auflisten, auch Verborgenes</translation>
    </message>
    <message>
        <source>Ctrl and wheel</source>
        <translation>Strg und Mausrad</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Am Zeiger zoomen</translation>
    </message>
    <message>
        <source>Wheel, Shift and wheel</source>
        <translation>Mausrad, Umschalt und Mausrad</translation>
    </message>
    <message>
        <source>Scroll down, across</source>
        <translation>Senkrecht, waagerecht scrollen</translation>
    </message>
    <message>
        <source>Space or middle button, and drag</source>
        <translation>Leertaste oder mittlere Maustaste und Ziehen</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Ausschnitt verschieben</translation>
    </message>
    <message>
        <source>Drag from a ruler</source>
        <translation>Aus einem Lineal ziehen</translation>
    </message>
    <message>
        <source>Lay out a guide; off the view it is taken away</source>
        <translation>Hilfslinie legen; außerhalb verschwindet sie</translation>
    </message>
    <message>
        <source>Drag the canvas&apos;s edge</source>
        <translation>Den Rand der Arbeitsfläche ziehen</translation>
    </message>
    <message>
        <source>Size the canvas window</source>
        <translation>Die Größe der Arbeitsfläche ändern</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the keys of one command</extracomment>
        <translation> oder </translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Sonst</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Wie</translation>
    </message>
    <message>
        <source>Keyboard and Mouse</source>
        <translation>Tastatur und Maus</translation>
    </message>
    <message>
        <source>All keys and gestures; Escape closes this window</source>
        <translation>Alle Tasten und Gesten; Escape schließt dieses Fenster</translation>
    </message>
    <message>
        <source>Keys on the Canvas</source>
        <translation>Tasten auf der Arbeitsfläche</translation>
    </message>
    <message>
        <source>Mouse on the Canvas</source>
        <translation>Maus auf der Arbeitsfläche</translation>
    </message>
    <message>
        <source>Mouse on the View</source>
        <translation>Maus in der Ansicht</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Die Sprache wechselt beim nächsten Start.</translation>
    </message>
    <message>
        <source>The language can&apos;t be kept: %1 can&apos;t be written.</source>
        <translation>Die Sprachwahl kann nicht gespeichert werden: %1 ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Speak this language from the next start on</source>
        <translation>Diese Sprache ab dem nächsten Start verwenden</translation>
    </message>
    <message>
        <source>&amp;System&apos;s</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>Mock-up</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no picture that can be shown.</source>
        <translation>„%1“ ist kein Bild, das sich zeigen lässt.</translation>
    </message>
    <message>
        <source>How much of what lies on top is seen</source>
        <translation>Wie viel von dem zu sehen ist, was obenauf liegt</translation>
    </message>
    <message>
        <source>&amp;Over the Screen</source>
        <translation>Ü&amp;ber dem Bildschirm</translation>
    </message>
    <message>
        <source>Show the mock-up see-through over the screen</source>
        <translation>Die Vorlage durchscheinend über dem Bildschirm zeigen</translation>
    </message>
    <message>
        <source>&amp;Under the Screen</source>
        <translation>&amp;Unter dem Bildschirm</translation>
    </message>
    <message>
        <source>Show the screen see-through over the mock-up</source>
        <translation>Den Bildschirm durchscheinend über der Vorlage zeigen</translation>
    </message>
    <message>
        <source>&amp;Choose Picture...</source>
        <translation>Bild &amp;wählen...</translation>
    </message>
    <message>
        <source>Lay a picture over the canvas to compare with; it is never saved</source>
        <translation>Ein Bild zum Vergleichen über die Arbeitsfläche legen; es wird nie gespeichert</translation>
    </message>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Take the mock-up away</source>
        <translation>Die Vorlage entfernen</translation>
    </message>
    <message>
        <source>&amp;Accent</source>
        <translation>&amp;Akzent</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>Akzent</translation>
    </message>
    <message>
        <source>Lines, light, and what is to be touched next</source>
        <translation>Linien, Licht und was als Nächstes zu berühren ist</translation>
    </message>
    <message>
        <source>&amp;Ground</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>What everything stands on</source>
        <translation>Worauf alles steht</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The letters; moved where they couldn&apos;t be read on the ground</source>
        <translation>Die Buchstaben; angepasst, wo sie auf dem Hintergrund nicht lesbar wären</translation>
    </message>
    <message>
        <source>
To open it ends the program with this text: what isn&apos;t saved in the Skin in hand is lost.</source>
        <translation>
Ihn zu öffnen beendet das Programm mit diesem Text: Ungespeichertes im aktuellen Skin geht verloren.</translation>
    </message>
    <message>
        <source>no problems</source>
        <translation>keine Probleme</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 Problem</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 Probleme</translation>
    </message>
    <message>
        <source>Can&apos;t be loaded: %1</source>
        <translation>Lässt sich nicht laden: %1</translation>
    </message>
    <message>
        <source>saved %1</source>
        <translation>gespeichert %1</translation>
    </message>
    <message>
        <source>can&apos;t be loaded</source>
        <translation>lässt sich nicht laden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Caption, name, Section or screen</source>
        <translation>Beschriftung, Name, Section oder Bildschirm</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Show only elements that all these words are found in</source>
        <translation>Nur Elemente zeigen, in denen alle diese Wörter vorkommen</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Click an element to go there and select it; Enter takes it in hand</source>
        <translation>Ein Element anklicken, um hinzugehen und es auszuwählen; Eingabe macht es zum aktuellen</translation>
    </message>
    <message>
        <source>%1   (hidden)</source>
        <translation>%1   (verborgen)</translation>
    </message>
    <message>
        <source>Nothing lies here</source>
        <translation>Hier liegt nichts</translation>
    </message>
    <message>
        <source>%1, %2 times</source>
        <translation>%1, %2-mal</translation>
    </message>
    <message>
        <source>Not a picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>%1
Can&apos;t be shown</source>
        <translation>%1
Nicht zu zeigen</translation>
    </message>
    <message>
        <source>Export as Web Page</source>
        <translation>Als Webseite exportieren</translation>
    </message>
    <message>
        <source>Web Pages (*.html)</source>
        <translation>Webseiten (*.html)</translation>
    </message>
    <message>
        <source>The web page %1 is written.</source>
        <translation>Die Webseite %1 ist geschrieben.</translation>
    </message>
    <message>
        <source>Nothing is written. %1</source>
        <translation>Nichts wird geschrieben. %1</translation>
    </message>
    <message>
        <source>The screen is on the clipboard.</source>
        <translation>Der Bildschirm ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Export as &amp;Web Page...</source>
        <translation>Als &amp;Webseite exportieren...</translation>
    </message>
    <message>
        <source>Write one page with all screens, to be looked at in a browser</source>
        <translation>Eine Seite mit allen Bildschirmen schreiben, zum Ansehen im Browser</translation>
    </message>
    <message>
        <source>&amp;Copy This Screen</source>
        <translation>Diesen &amp;Bildschirm kopieren</translation>
    </message>
    <message>
        <source>Put a picture of the canvas on the clipboard</source>
        <translation>Ein Bild der Arbeitsfläche in die Zwischenablage legen</translation>
    </message>
    <message>
        <source>What is wrong or risky in this Skin, hints apart; a click shows all of it</source>
        <translation>Was in diesem Skin falsch oder riskant ist, ohne Hinweise; ein Klick zeigt alles</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>%1, %2: %3, was %4</source>
        <translation>%1, %2: %3, war %4</translation>
    </message>
    <message>
        <source>All captions can be read as well as before.</source>
        <translation>Alle Beschriftungen sind so gut lesbar wie zuvor.</translation>
    </message>
    <message>
        <source>1 &amp;caption falls below a contrast of 4.5, or 3 if large:</source>
        <translation>1 Beschrift&amp;ung mit Kontrast unter 4.5 (große unter 3):</translation>
    </message>
    <message>
        <source>%1 &amp;captions fall below a contrast of 4.5, or 3 if large:</source>
        <translation>%1 Beschrift&amp;ungen mit Kontrast unter 4.5 (große unter 3):</translation>
    </message>
    <message>
        <source>1 place has another colour now.</source>
        <translation>1 Stelle hat jetzt eine andere Farbe.</translation>
    </message>
    <message>
        <source>%1 places have other colours now.</source>
        <translation>%1 Stellen haben jetzt andere Farben.</translation>
    </message>
    <message>
        <source> Pictures copied as they are: %1, the first is %2, %3.</source>
        <translation> Unverändert kopierte Bilder: %1, das erste ist %2, %3.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>The colours that the Skin stores; Enter gives another one</source>
        <translation>Die Farben, die der Skin speichert; Eingabe gibt eine andere</translation>
    </message>
    <message>
        <source>&amp;Replace...</source>
        <translation>&amp;Ersetzen...</translation>
    </message>
    <message>
        <source>Give another colour to all places of this one</source>
        <translation>Allen Stellen mit dieser Farbe eine andere geben</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Leave this colour to the sliders again</source>
        <translation>Diese Farbe wieder den Schiebern überlassen</translation>
    </message>
    <message>
        <source>Colou&amp;rs of the Skin:</source>
        <translation>Fa&amp;rben des Skins:</translation>
    </message>
    <message>
        <source>&amp;Whole Skin</source>
        <translation>&amp;Ganzer Skin</translation>
    </message>
    <message>
        <source>Recolour every screen</source>
        <translation>Jeden Bildschirm umfärben</translation>
    </message>
    <message>
        <source>&amp;This Screen</source>
        <translation>&amp;Dieser Bildschirm</translation>
    </message>
    <message>
        <source>Recolour the screen that is shown alone</source>
        <translation>Nur den gezeigten Bildschirm umfärben</translation>
    </message>
    <message>
        <source>&amp;Pictures too (as a new Skin)</source>
        <translation>Auch Bi&amp;lder (als neuer Skin)</translation>
    </message>
    <message>
        <source>Turn the pictures as well, in a copy of the Skin; this one stays</source>
        <translation>Auch die Bilder umfärben, in einer Kopie des Skins; dieser bleibt</translation>
    </message>
    <message>
        <source>Captions that can&apos;t be read any more</source>
        <translation>Beschriftungen, die nicht mehr lesbar sind</translation>
    </message>
    <message>
        <source>Click a caption to go to its screen and select it</source>
        <translation>Eine Beschriftung anklicken, um zum Bildschirm zu gehen und sie auszuwählen</translation>
    </message>
    <message>
        <source>R&amp;eset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Leave all colours as they are</source>
        <translation>Alle Farben lassen, wie sie sind</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Recolour the Skin, as one step</source>
        <translation>Den Skin in einem Schritt umfärben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leave the Skin as it is</source>
        <translation>Den Skin lassen, wie er ist</translation>
    </message>
    <message>
        <source>Make &amp;New Skin...</source>
        <translation>&amp;Neuer Skin...</translation>
    </message>
    <message>
        <source>Make a new Skin in these colours, and go on with that</source>
        <translation>Einen neuen Skin in diesen Farben machen und mit ihm weiterarbeiten</translation>
    </message>
    <message>
        <source>Rec&amp;olour...</source>
        <translation>U&amp;mfärben...</translation>
    </message>
    <message>
        <source>Give the Skin other colours: replace some, or turn all of them</source>
        <translation>Dem Skin andere Farben geben: einzelne ersetzen oder alle verschieben</translation>
    </message>
    <message>
        <source>Another program changed %1.</source>
        <translation>Ein anderes Programm hat %1 geändert.</translation>
    </message>
    <message>
        <source>Another program changed %1 record files: %2.</source>
        <translation>Ein anderes Programm hat %1 Datensatzdateien geändert: %2.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source> Reload reads the Skin again, one step of undo.</source>
        <translation> Neu laden liest den Skin noch einmal, als ein Schritt im Verlauf.</translation>
    </message>
    <message>
        <source>Do It</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Even Scale</source>
        <translation>Gleichmäßig</translation>
    </message>
    <message>
        <source>Fill in the numbers that scale both directions alike</source>
        <translation>Die Zahlen eintragen, die beide Richtungen gleich skalieren</translation>
    </message>
    <message>
        <source>Factors: none for this size</source>
        <translation>Faktoren: keine für diese Größe</translation>
    </message>
    <message>
        <source>Width %1, height %2, fonts %3</source>
        <translation>Breite %1, Höhe %2, Schriften %3</translation>
    </message>
    <message>
        <source>%1; %2 to %3</source>
        <translation>%1; %2 auf %3</translation>
    </message>
    <message>
        <source>Height as the &amp;Width</source>
        <translation>Höhe wie die &amp;Breite</translation>
    </message>
    <message>
        <source>Width as the &amp;Height</source>
        <translation>Breite wie die &amp;Höhe</translation>
    </message>
    <message>
        <source>To %1 (%2)</source>
        <translation>Auf %1 (%2)</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>The screens as the jukebox shows them; a click goes to one</source>
        <translation>Die Bildschirme, wie die Jukebox sie zeigt; ein Klick führt hin</translation>
    </message>
    <message>
        <source>Only Skins of %1 can be opened here: copy %2 there, or start the designer with it.</source>
        <translation>Hier lassen sich nur Skins aus %1 öffnen: %2 dorthin kopieren oder das Programm damit starten.</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Can&apos;t be shown</source>
        <translation>Nicht zu zeigen</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Choose among the colours of this Skin, or pick one from the canvas</source>
        <translation>Unter den Farben dieses Skins wählen oder eine von der Arbeitsfläche aufnehmen</translation>
    </message>
    <message>
        <source>Take from Another Skin</source>
        <translation>Aus anderem Skin übernehmen</translation>
    </message>
    <message>
        <source>This &amp;screen&apos;s look</source>
        <translation>&amp;Aussehen dieses Bildschirms</translation>
    </message>
    <message>
        <source>Places, sizes, colours, fonts, styles and pictures</source>
        <translation>Orte, Größen, Farben, Schriften, Stile und Bilder</translation>
    </message>
    <message>
        <source>&amp;Colours and fonts alone</source>
        <translation>&amp;Nur Farben und Schriften</translation>
    </message>
    <message>
        <source>Nothing moves, and no picture is copied</source>
        <translation>Nichts verschiebt sich, und kein Bild wird kopiert</translation>
    </message>
    <message>
        <source>&amp;For the screen that is shown, take from:</source>
        <translation>&amp;Für den gezeigten Bildschirm übernehmen aus:</translation>
    </message>
    <message>
        <source>The other Skins; none of them is changed</source>
        <translation>Die anderen Skins; keiner wird geändert</translation>
    </message>
    <message>
        <source>&amp;Take</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>&amp;Take from Another Skin...</source>
        <translation>A&amp;us anderem Skin übernehmen...</translation>
    </message>
    <message>
        <source>Give this screen the look that it has in another Skin</source>
        <translation>Diesem Bildschirm das Aussehen geben, das er in einem anderen Skin hat</translation>
    </message>
    <message>
        <source>Album frame</source>
        <translation>Album-Rahmen</translation>
    </message>
    <message>
        <source>Frame:</source>
        <translation>Rahmen:</translation>
    </message>
    <message>
        <source>Place and Size</source>
        <translation>Ort und Größe</translation>
    </message>
    <message>
        <source>Button Style</source>
        <translation>Stil von Schaltflächen</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Escape returns, the arrow keys leaf</source>
        <translation>Escape kehrt zurück, die Pfeiltasten blättern</translation>
    </message>
    <message>
        <source>&amp;Hue:</source>
        <translation>Farb&amp;ton:</translation>
    </message>
    <message>
        <source>Turns the hue of all other colours; greys have none</source>
        <translation>Dreht den Farbton aller anderen Farben; Grautöne haben keinen</translation>
    </message>
    <message>
        <source>&amp;Saturation:</source>
        <translation>&amp;Sättigung:</translation>
    </message>
    <message>
        <source>Makes all other colours duller or richer; greys stay</source>
        <translation>Macht alle anderen Farben matter oder satter; Grautöne bleiben</translation>
    </message>
    <message>
        <source>&amp;Lightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Makes all other colours darker or lighter</source>
        <translation>Macht alle anderen Farben dunkler oder heller</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show the canvas larger</source>
        <translation>Die Arbeitsfläche größer zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show the canvas smaller</source>
        <translation>Die Arbeitsfläche kleiner zeigen</translation>
    </message>
    <message>
        <source>Show the canvas in its own size</source>
        <translation>Die Arbeitsfläche in ihrer eigenen Größe zeigen</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>Show the whole canvas, at 100 % at most</source>
        <translation>Die ganze Arbeitsfläche zeigen, höchstens mit 100 %</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>&amp;Raster</translation>
    </message>
    <message>
        <source>Show a grid over the canvas</source>
        <translation>Ein Raster über der Arbeitsfläche zeigen</translation>
    </message>
    <message>
        <source>Grid S&amp;tep</source>
        <translation>Raster&amp;weite</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>Show rulers in canvas pixels; guides are dragged from them</source>
        <translation>Lineale in Pixeln der Arbeitsfläche zeigen; Hilfslinien werden daraus gezogen</translation>
    </message>
    <message>
        <source>Clear G&amp;uides</source>
        <translation>&amp;Hilfslinien entfernen</translation>
    </message>
    <message>
        <source>Take all guides away</source>
        <translation>Alle Hilfslinien entfernen</translation>
    </message>
    <message>
        <source>Zoom of the canvas; Ctrl and the wheel change it at the pointer</source>
        <translation>Zoom der Arbeitsfläche; Strg und Mausrad ändern ihn am Zeiger</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom: %1</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>&amp;Unten</translation>
    </message>
    <message>
        <source>&amp;Centre</source>
        <translation>&amp;Waagerecht mittig</translation>
    </message>
    <message>
        <source>&amp;Middle</source>
        <translation>&amp;Senkrecht mittig</translation>
    </message>
    <message>
        <source>Recolour</source>
        <translation>Umfärben</translation>
    </message>
</context>
<context>
    <name>veneerer::CanvasWidget</name>
    <message>
        <source>Canvas</source>
        <translation>Arbeitsfläche</translation>
    </message>
</context>
<context>
    <name>veneerer::CanvasWindow</name>
    <message>
        <source>In hand</source>
        <translation>Aktuelles Element</translation>
    </message>
    <message>
        <source>&amp;Open Skin...</source>
        <translation>Skin ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Choose another Skin; Undo leads back</source>
        <translation>Einen anderen Skin wählen; Rückgängig führt zurück</translation>
    </message>
    <message>
        <source>&amp;Save Skin</source>
        <translation>Skin &amp;speichern</translation>
    </message>
    <message>
        <source>Write the record files of the Skin</source>
        <translation>Die Datensatzdateien des Skins schreiben</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>End the program; nothing is saved</source>
        <translation>Das Programm beenden; nichts wird gespeichert</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take the last step back</source>
        <translation>Den letzten Schritt zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Do that step again</source>
        <translation>Diesen Schritt noch einmal tun</translation>
    </message>
    <message>
        <source>&amp;Screen</source>
        <translation>&amp;Bildschirm</translation>
    </message>
    <message>
        <source>&amp;Next Screen</source>
        <translation>&amp;Nächster Bildschirm</translation>
    </message>
    <message>
        <source>Show the screen behind this one in the list</source>
        <translation>Den nächsten Bildschirm der Liste zeigen</translation>
    </message>
    <message>
        <source>&amp;Previous Screen</source>
        <translation>&amp;Voriger Bildschirm</translation>
    </message>
    <message>
        <source>Show the screen ahead of this one in the list</source>
        <translation>Den vorigen Bildschirm der Liste zeigen</translation>
    </message>
    <message>
        <source>Tr&amp;y It</source>
        <translation>Aus&amp;probieren</translation>
    </message>
    <message>
        <source>See the Skin in full screen and press its menus&apos; buttons</source>
        <translation>Den Skin bildschirmfüllend sehen und die Schaltflächen seiner Menüs drücken</translation>
    </message>
    <message>
        <source>&amp;Mock-up</source>
        <translation>V&amp;orlage</translation>
    </message>
    <message>
        <source>Show this screen</source>
        <translation>Diesen Bildschirm zeigen</translation>
    </message>
    <message>
        <source>&amp;Canvas</source>
        <translation>&amp;Arbeitsfläche</translation>
    </message>
    <message>
        <source>Give the keys to the canvas</source>
        <translation>Die Tasten der Arbeitsfläche geben</translation>
    </message>
    <message>
        <source>&amp;Arrange</source>
        <translation>An&amp;ordnen</translation>
    </message>
    <message>
        <source>Put all panels back beside the canvas</source>
        <translation>Alle Bereiche wieder neben die Arbeitsfläche setzen</translation>
    </message>
    <message>
        <source>Bring this panel to the front</source>
        <translation>Diesen Bereich nach vorn holen</translation>
    </message>
    <message>
        <source>&amp;Keyboard and Mouse</source>
        <translation>&amp;Tastatur und Maus</translation>
    </message>
    <message>
        <source>List all keys and gestures</source>
        <translation>Alle Tasten und Gesten auflisten</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber Veneerer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Veneerer</translation>
    </message>
</context>
<context>
    <name>veneerer::ColourList</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>Wird zu</translation>
    </message>
</context>
<context>
    <name>veneerer::EdgeHandle</name>
    <message>
        <source>Drag to size the canvas window</source>
        <translation>Ziehen, um die Größe der Arbeitsfläche zu ändern</translation>
    </message>
    <message>
        <source>Size of the canvas window</source>
        <translation>Größe der Arbeitsfläche</translation>
    </message>
</context>
<context>
    <name>veneerer::HelpWindow</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>List the pages that all these words are found in</source>
        <translation>Die Seiten auflisten, in denen alle diese Wörter vorkommen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The pages of the manual; a click or Enter opens one</source>
        <translation>Die Seiten des Handbuchs; ein Klick oder Eingabe öffnet eine</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>A page of the manual; Tab goes from link to link, Enter follows one</source>
        <translation>Eine Seite des Handbuchs; Tab geht von Verweis zu Verweis, Eingabe folgt einem</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Go to the page before (Alt+Left)</source>
        <translation>Zur vorigen Seite (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>Go to the page that Back came from (Alt+Right)</source>
        <translation>Zur Seite, von der Zurück kam (Alt+Rechts)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Go to the list of all pages</source>
        <translation>Zur Liste aller Seiten</translation>
    </message>
    <message>
        <source>Nothing is found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Manual: %1</source>
        <translation>Handbuch: %1</translation>
    </message>
</context>
<context>
    <name>veneerer::NewSkinDialog</name>
    <message>
        <source>New Skin</source>
        <translation>Neuer Skin</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>The name of its folder among the Skins</source>
        <translation>Der Name seines Ordners unter den Skins</translation>
    </message>
    <message>
        <source>The kind of the Skin; brings its own size, colours and font</source>
        <translation>Die Art des Skins; bringt eigene Größe, Farben und Schrift mit</translation>
    </message>
    <message>
        <source>Width x height of the screen in pixels, also typed</source>
        <translation>Breite x Höhe des Bildschirms in Pixeln, auch eingetippt</translation>
    </message>
    <message>
        <source>The font of all texts</source>
        <translation>Die Schrift aller Texte</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Look:</source>
        <translation>&amp;Look:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>veneerer::OpenSkinDialog</name>
    <message>
        <source>Open Skin</source>
        <translation>Skin öffnen</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>Skins</translation>
    </message>
    <message>
        <source>There are no Skins in %1.</source>
        <translation>In %1 gibt es keine Skins.</translation>
    </message>
</context>
<context>
    <name>veneerer::ProblemsPanel</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>Click a problem to go to its screen and select its element</source>
        <translation>Ein Problem anklicken, um zum Bildschirm zu gehen und das Element auszuwählen</translation>
    </message>
    <message>
        <source>Go to the Element</source>
        <translation>Zum Element gehen</translation>
    </message>
</context>
<context>
    <name>veneerer::Ruler</name>
    <message>
        <source>Canvas pixels. Drag a guide from here; drag its mark off the view to remove it</source>
        <translation>Pixel der Arbeitsfläche. Von hier eine Hilfslinie ziehen; ihre Marke aus der Ansicht ziehen, um sie zu entfernen</translation>
    </message>
    <message>
        <source>Ruler across</source>
        <translation>Waagerechtes Lineal</translation>
    </message>
    <message>
        <source>Ruler down</source>
        <translation>Senkrechtes Lineal</translation>
    </message>
</context>
<context>
    <name>veneerer::Thumbnail</name>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>veneerer::TryIt</name>
    <message>
        <source>Try It</source>
        <translation>Ausprobieren</translation>
    </message>
</context>
</TS>
