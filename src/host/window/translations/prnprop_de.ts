<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>prnprop</name>
    <message>
        <source>only written in the row of a structure</source>
        <translation>wird nur in der Zeile einer Struktur geschrieben</translation>
    </message>
    <message>
        <source>not written in the row of a structure</source>
        <translation>wird in der Zeile einer Struktur nicht geschrieben</translation>
    </message>
    <message>
        <source>the control does not write this column</source>
        <translation>diese Spalte wird nicht geschrieben</translation>
    </message>
    <message>
        <source>a layout is written, never read</source>
        <translation>ein Layout wird geschrieben, aber nie gelesen</translation>
    </message>
    <message>
        <source>always the text of PR_COL1_HEADER</source>
        <translation>immer der Text aus PR_COL1_HEADER</translation>
    </message>
    <message>
        <source>always this text</source>
        <translation>immer dieser Text</translation>
    </message>
    <message>
        <source>unknown code, counts as the default</source>
        <translation>unbekannter Code, gilt als Vorgabe</translation>
    </message>
    <message>
        <source>only a whole number is kept</source>
        <translation>nur eine ganze Zahl bleibt erhalten</translation>
    </message>
    <message>
        <source>the name as the characteristic has it</source>
        <translation>der Name, wie ihn das Merkmal trägt</translation>
    </message>
    <message>
        <source>a structure without a name does not exist</source>
        <translation>eine Struktur ohne Namen gibt es nicht</translation>
    </message>
    <message>
        <source>only two structures are kept</source>
        <translation>nur zwei Strukturen bleiben erhalten</translation>
    </message>
    <message>
        <source>{0} names no structure that comes back</source>
        <translation>{0} benennt keine Struktur, die erhalten bleibt</translation>
    </message>
    <message>
        <source>{0} names no characteristic</source>
        <translation>{0} benennt kein Merkmal</translation>
    </message>
    <message>
        <source>no characteristic is spelled {0}; of such rows only the first is found</source>
        <translation>kein Merkmal schreibt sich {0}; von solchen Zeilen wird nur die erste gefunden</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>centered</source>
        <translation>zentriert</translation>
    </message>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>each page</source>
        <translation>auf jeder Seite</translation>
    </message>
    <message>
        <source>with hierarchy</source>
        <translation>mit Hierarchie</translation>
    </message>
    <message>
        <source>level {0}</source>
        <translation>Level {0}</translation>
    </message>
    <message>
        <source>version {0}</source>
        <translation>Version {0}</translation>
    </message>
    <message>
        <source>to {0}</source>
        <translation>bis {0}</translation>
    </message>
    <message>
        <source>totals suppressed on condition</source>
        <translation>Summen bedingt unterdrückt</translation>
    </message>
    <message>
        <source>totals always suppressed</source>
        <translation>Summen immer unterdrückt</translation>
    </message>
    <message>
        <source>new cover page</source>
        <translation>neues Deckblatt</translation>
    </message>
    <message>
        <source>new page</source>
        <translation>neue Seite</translation>
    </message>
    <message>
        <source>new block</source>
        <translation>neuer Block</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>vertikal</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>left of the value</source>
        <translation>links vom Wert</translation>
    </message>
    <message>
        <source>right of the value</source>
        <translation>rechts vom Wert</translation>
    </message>
    <message>
        <source>in the heading</source>
        <translation>in der Überschrift</translation>
    </message>
    <message>
        <source>not displayed</source>
        <translation>keine Anzeige</translation>
    </message>
    <message>
        <source>{0} page</source>
        <translation>{0} Seite</translation>
    </message>
    <message>
        <source>{0} pages</source>
        <translation>{0} Seiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Seitenfolge</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>Signs</source>
        <translation>Vorzeichen</translation>
    </message>
    <message>
        <source>Currency and unit</source>
        <translation>Währung und Einheit</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>no zeros</source>
        <translation>keine Nullen</translation>
    </message>
    <message>
        <source>no repeated texts</source>
        <translation>keine wiederholten Texte</translation>
    </message>
    <message>
        <source>no lines</source>
        <translation>keine Linien</translation>
    </message>
    <message>
        <source>colored headers</source>
        <translation>farbige Überschriften</translation>
    </message>
    <message>
        <source>Print characteristics</source>
        <translation>Druckmerkmale</translation>
    </message>
    <message>
        <source>Column 1</source>
        <translation>Spalte 1</translation>
    </message>
    <message>
        <source>Column 2</source>
        <translation>Spalte 2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Characteristics</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Structure elements</source>
        <translation>Strukturelemente</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nicht gedruckt</translation>
    </message>
    <message>
        <source>{0}, row {1}</source>
        <translation>{0}, Zeile {1}</translation>
    </message>
    <message>
        <source>{0}, column {1}</source>
        <translation>{0}, Spalte {1}</translation>
    </message>
    <message>
        <source>only the first characteristic of a name keeps its layout</source>
        <translation>nur das erste Merkmal eines Namens behält sein Layout</translation>
    </message>
    <message>
        <source>Names that stand more than once in the settings can&apos;t be told apart.</source>
        <translation>Namen, die in den Einstellungen mehrfach vorkommen, lassen sich nicht unterscheiden.</translation>
    </message>
    <message>
        <source>Print settings</source>
        <translation>Druckeinstellungen</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>(read-only)</source>
        <translation>(schreibgeschützt)</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>Das konnte nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>That can&apos;t be undone.</source>
        <translation>Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>The settings can&apos;t be read back.</source>
        <translation>Die Einstellungen lassen sich nicht zurücklesen.</translation>
    </message>
    <message>
        <source>Opened read-only, since it could not be saved.</source>
        <translation>Schreibgeschützt geöffnet, da die Datei nicht gespeichert werden könnte.</translation>
    </message>
    <message>
        <source>The settings could not be saved.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>The file could not be loaded again.</source>
        <translation>Die Datei konnte nicht neu geladen werden.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Not everything is stored as it was typed.</source>
        <translation>Nicht alles ist so gespeichert, wie es eingegeben wurde.</translation>
    </message>
    <message>
        <source>One thing that the file says can&apos;t be kept.</source>
        <translation>Eine Angabe aus der Datei kann nicht erhalten bleiben.</translation>
    </message>
    <message>
        <source>{0} things that the file says can&apos;t be kept.</source>
        <translation>{0} Angaben aus der Datei können nicht erhalten bleiben.</translation>
    </message>
    <message>
        <source>The file has changed since it was opened.</source>
        <translation>Die Datei wurde geändert, seit sie geöffnet wurde.</translation>
    </message>
    <message>
        <source>A save would replace what now stands in {0}.</source>
        <translation>Beim Speichern würde der jetzige Inhalt von {0} ersetzt.</translation>
    </message>
    <message>
        <source>The file is gone since it was opened.</source>
        <translation>Die Datei wurde gelöscht oder verschoben, seit sie geöffnet wurde.</translation>
    </message>
    <message>
        <source>A save would make {0} anew.</source>
        <translation>Beim Speichern würde {0} neu angelegt.</translation>
    </message>
    <message>
        <source>The file can&apos;t be compared.</source>
        <translation>Die Datei kann nicht verglichen werden.</translation>
    </message>
    <message>
        <source>The settings say the same as the file.</source>
        <translation>Die Einstellungen besagen dasselbe wie die Datei.</translation>
    </message>
    <message>
        <source>A save changes this in the file:</source>
        <translation>Beim Speichern ändert sich in der Datei:</translation>
    </message>
    <message>
        <source>What has changed:</source>
        <translation>Was sich geändert hat:</translation>
    </message>
    <message>
        <source>The settings have changed.</source>
        <translation>Die Einstellungen wurden geändert.</translation>
    </message>
    <message>
        <source>Save them?</source>
        <translation>Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>Save them in {0}?</source>
        <translation>Möchten Sie sie in {0} speichern?</translation>
    </message>
    <message>
        <source>in the window</source>
        <translation>im Fenster</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>saves and closes, as OK does</source>
        <translation>speichert und schließt wie OK</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>closes, as Cancel does</source>
        <translation>schließt wie Abbrechen</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Strg+S</translation>
    </message>
    <message>
        <source>saves, as Apply does</source>
        <translation>speichert wie Anwenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Strg+Umschalt+S</translation>
    </message>
    <message>
        <source>saves in another file</source>
        <translation>speichert in einer anderen Datei</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Strg+O</translation>
    </message>
    <message>
        <source>opens another file</source>
        <translation>öffnet eine andere Datei</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Strg+N</translation>
    </message>
    <message>
        <source>begins new settings</source>
        <translation>beginnt neue Einstellungen</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Strg+Z</translation>
    </message>
    <message>
        <source>takes the last change back</source>
        <translation>macht die letzte Änderung rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z and Ctrl+Y</source>
        <translation>Strg+Umschalt+Z und Strg+Y</translation>
    </message>
    <message>
        <source>make it again</source>
        <translation>stellen sie wieder her</translation>
    </message>
    <message>
        <source>reads the settings back</source>
        <translation>liest die Einstellungen zurück</translation>
    </message>
    <message>
        <source>shows all keys</source>
        <translation>zeigt alle Tasten</translation>
    </message>
    <message>
        <source>in the field to find an entry</source>
        <translation>im Feld zum Suchen eines Eintrags</translation>
    </message>
    <message>
        <source>in the panel</source>
        <translation>in der Vorschau</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>finds an entry of the list at hand by any part of its text</source>
        <translation>sucht in der aktuellen Liste einen Eintrag nach einem beliebigen Teil seines Textes</translation>
    </message>
    <message>
        <source>Enter and F3</source>
        <translation>Eingabe und F3</translation>
    </message>
    <message>
        <source>find the next one</source>
        <translation>suchen den nächsten</translation>
    </message>
    <message>
        <source>goes back to the list</source>
        <translation>führt zur Liste zurück</translation>
    </message>
    <message>
        <source>F8 and Shift+F8</source>
        <translation>F8 und Umschalt+F8</translation>
    </message>
    <message>
        <source>lead to the next cell that differs and to the one before</source>
        <translation>führen zur nächsten abweichenden Zelle und zur vorherigen</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+- and Ctrl+0</source>
        <translation>Strg++, Strg+- und Strg+0</translation>
    </message>
    <message>
        <source>make the page larger, smaller and as wide as the panel</source>
        <translation>vergrößern die Seite, verkleinern sie und passen sie der Breite an</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>scroll the page</source>
        <translation>verschieben die Seite</translation>
    </message>
    <message>
        <source>The layout has changed.</source>
        <translation>Das Layout wurde geändert.</translation>
    </message>
    <message>
        <source>Throw away what was typed?</source>
        <translation>Möchten Sie die Eingabe verwerfen?</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>{0} {1} is no number up to 32767: {2} kept</source>
        <translation>{0} {1} ist keine Zahl bis 32767: {2} bleibt</translation>
    </message>
    <message>
        <source>No totals of: {0}</source>
        <translation>Keine Summen für: {0}</translation>
    </message>
    <message>
        <source>Totals on condition of: {0}</source>
        <translation>Bedingte Summen für: {0}</translation>
    </message>
    <message>
        <source>Maximal number of pages</source>
        <translation>Maximale Seitenzahl</translation>
    </message>
    <message>
        <source>Print direction</source>
        <translation>Druckrichtung</translation>
    </message>
    <message>
        <source>Columns with a thick line are on each page</source>
        <translation>Spalten mit dicker Linie stehen auf jeder Seite</translation>
    </message>
    <message>
        <source>Layouts of further totals rows: {0}</source>
        <translation>Layouts weiterer Summenzeilen: {0}</translation>
    </message>
    <message>
        <source>There are more breaks than these</source>
        <translation>Es gibt weitere Wechsel</translation>
    </message>
    <message>
        <source>Total, on condition</source>
        <translation>Summe, bedingt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Overall total</source>
        <translation>Gesamtsumme</translation>
    </message>
    <message>
        <source>,</source>
        <translation>.</translation>
    </message>
    <message>
        <source>Top page</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>Head part</source>
        <translation>Kopfteil</translation>
    </message>
    <message>
        <source>Foot part</source>
        <translation>Fußteil</translation>
    </message>
    <message>
        <source>End page</source>
        <translation>Abschlussseite</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>Totals row of {0}</source>
        <translation>Summenzeile von {0}</translation>
    </message>
    <message>
        <source>{0} is now {1} of {2}</source>
        <translation>{0} steht jetzt auf Platz {1} von {2}</translation>
    </message>
    <message>
        <source>Order changed: {0}</source>
        <translation>Reihenfolge geändert: {0}</translation>
    </message>
    <message>
        <source>{0} selected: their settings show when one is selected</source>
        <translation>{0} ausgewählt: Einstellungen erscheinen, wenn nur ein Eintrag ausgewählt ist</translation>
    </message>
    <message>
        <source>{0}: {1} of {2} used</source>
        <translation>{0}: {1} von {2} belegt</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The row does not come back</source>
        <translation>Die Zeile bleibt nicht erhalten</translation>
    </message>
    <message>
        <source>Empty in the file</source>
        <translation>In der Datei leer</translation>
    </message>
    <message>
        <source>In the file: {0}</source>
        <translation>In der Datei: {0}</translation>
    </message>
    <message>
        <source>&amp;New	Ctrl+N</source>
        <translation>&amp;Neu	Strg+N</translation>
    </message>
    <message>
        <source>&amp;Open...	Ctrl+O</source>
        <translation>Ö&amp;ffnen...	Strg+O</translation>
    </message>
    <message>
        <source>&amp;Save	Ctrl+S</source>
        <translation>&amp;Speichern	Strg+S</translation>
    </message>
    <message>
        <source>Save &amp;as...	Ctrl+Shift+S</source>
        <translation>Speichern &amp;unter...	Strg+Umschalt+S</translation>
    </message>
    <message>
        <source>Save settings as</source>
        <translation>Einstellungen speichern unter</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Settings documents (*.json)</source>
        <translation>Einstellungsdokumente (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Find an entry</source>
        <translation>Eintrag suchen</translation>
    </message>
    <message>
        <source>Any part of its text; Enter or F3 for the next one, Escape for the list</source>
        <translation>Beliebiger Teil seines Textes; Eingabe oder F3 für den nächsten, Esc für die Liste</translation>
    </message>
    <message>
        <source>No list on this page</source>
        <translation>Keine Liste auf dieser Registerkarte</translation>
    </message>
    <message>
        <source>Not found in: {0}</source>
        <translation>Nicht gefunden in: {0}</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Layout: {0}</source>
        <translation>Layout: {0}</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Reads the settings back, which stores the page as it is; Undo leads back</source>
        <translation>Liest die Einstellungen zurück und übernimmt dabei die Registerkarte, wie sie ist; Rückgängig führt zurück</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>&amp;Next difference</source>
        <translation>&amp;Nächster Unterschied</translation>
    </message>
    <message>
        <source>Goes to the next cell that is another than in the file (F8), or back to the one before (Shift+F8)</source>
        <translation>Geht zur nächsten Zelle, die von der Datei abweicht (F8), oder zur vorherigen zurück (Umschalt+F8)</translation>
    </message>
    <message>
        <source>Older than your last change.</source>
        <translation>Älter als Ihre letzte Änderung.</translation>
    </message>
    <message>
        <source>As the settings are read back.</source>
        <translation>Stand der zurückgelesenen Einstellungen.</translation>
    </message>
    <message>
        <source>Differs from the file</source>
        <translation>Weicht von der Datei ab</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Moves the entry up in the print order (Alt+Up)</source>
        <translation>Verschiebt den Eintrag in der Druckreihenfolge nach oben (Alt+Hoch)</translation>
    </message>
    <message>
        <source>Moves the entry down in the print order (Alt+Down)</source>
        <translation>Verschiebt den Eintrag in der Druckreihenfolge nach unten (Alt+Herunter)</translation>
    </message>
    <message>
        <source>Makes the page smaller (Ctrl+-)</source>
        <translation>Verkleinert die Seite (Strg+-)</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Size of the page</source>
        <translation>Größe der Seite</translation>
    </message>
    <message>
        <source>Fit width makes the page as small as it can be read, and folds one that is wider still (Ctrl+0)</source>
        <translation>Seitenbreite verkleinert die Seite, so weit sie lesbar bleibt, und bricht eine noch breitere um (Strg+0)</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Makes the page larger (Ctrl++)</source>
        <translation>Vergrößert die Seite (Strg++)</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>&amp;Follow changes</source>
        <translation>&amp;Immer aktuell</translation>
    </message>
    <message>
        <source>Reads the settings back whenever you pause, as Refresh does</source>
        <translation>Liest die Einstellungen zurück, sobald Sie innehalten, wie es Aktualisieren tut</translation>
    </message>
    <message>
        <source>P&amp;DF...</source>
        <translation>&amp;PDF...</translation>
    </message>
    <message>
        <source>Reads the settings back and saves the page as a PDF file</source>
        <translation>Liest die Einstellungen zurück und speichert die Seite als PDF-Datei</translation>
    </message>
    <message>
        <source>Save as PDF...</source>
        <translation>Als PDF speichern...</translation>
    </message>
    <message>
        <source>Pr&amp;int...</source>
        <translation>D&amp;rucken...</translation>
    </message>
    <message>
        <source>Reads the settings back and prints the page</source>
        <translation>Liest die Einstellungen zurück und druckt die Seite</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>The page could not be saved.</source>
        <translation>Die Seite konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Es ist kein Drucker vorhanden.</translation>
    </message>
    <message>
        <source>The page can be saved as a PDF file.</source>
        <translation>Die Seite kann als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>The page could not be printed.</source>
        <translation>Die Seite konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer does not take it.</source>
        <translation>Der Drucker nimmt sie nicht an.</translation>
    </message>
    <message>
        <source>Sketch of the printed page</source>
        <translation>Skizze der gedruckten Seite</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Show &amp;what differs</source>
        <translation>Unterschiede an&amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Save all the same</source>
        <translation>&amp;Trotzdem speichern</translation>
    </message>
    <message>
        <source>Fi&amp;le</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Shows beside the dialog what the settings mean</source>
        <translation>Zeigt neben dem Dialog, was die Einstellungen bewirken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Goes back to what was opened or saved last</source>
        <translation>Kehrt zum zuletzt geöffneten oder gespeicherten Stand zurück</translation>
    </message>
    <message>
        <source>Columns {0} to {1} of {2}</source>
        <translation>Spalten {0} bis {1} von {2}</translation>
    </message>
    <message>
        <source>Tab and Shift+Tab</source>
        <translation>Tab und Umschalt+Tab</translation>
    </message>
    <message>
        <source>lead to the next field and to the one before</source>
        <translation>führen zum nächsten Feld und zum vorherigen</translation>
    </message>
    <message>
        <source>Ctrl+Tab and Ctrl+PgDown</source>
        <translation>Strg+Tab und Strg+Bild abwärts</translation>
    </message>
    <message>
        <source>bring the next page to the top</source>
        <translation>holen die nächste Registerkarte nach vorn</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Tab and Ctrl+PgUp</source>
        <translation>Strg+Umschalt+Tab und Strg+Bild aufwärts</translation>
    </message>
    <message>
        <source>bring the page before to the top</source>
        <translation>holen die vorherige Registerkarte nach vorn</translation>
    </message>
    <message>
        <source>Arrows, Home and End</source>
        <translation>Pfeiltasten, Pos1 und Ende</translation>
    </message>
    <message>
        <source>bring another page to the top</source>
        <translation>holen eine andere Registerkarte nach vorn</translation>
    </message>
    <message>
        <source>Arrows, PgUp, PgDown, Home and End</source>
        <translation>Pfeiltasten, Bild aufwärts, Bild abwärts, Pos1 und Ende</translation>
    </message>
    <message>
        <source>lead to another entry</source>
        <translation>führen zu einem anderen Eintrag</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>lead to the entry that begins with them</source>
        <translation>führen zum Eintrag, der mit ihnen beginnt</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>selects the entry, or takes it out of the selection</source>
        <translation>wählt den Eintrag aus oder hebt seine Auswahl auf</translation>
    </message>
    <message>
        <source>Shift with arrows, PgUp, PgDown, Home and End</source>
        <translation>Umschalt mit Pfeiltasten, Bild aufwärts, Bild abwärts, Pos1 und Ende</translation>
    </message>
    <message>
        <source>selects all entries on the way</source>
        <translation>wählt alle Einträge auf dem Weg aus</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Strg+A</translation>
    </message>
    <message>
        <source>selects all entries</source>
        <translation>wählt alle Einträge aus</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Strg+Umschalt+A</translation>
    </message>
    <message>
        <source>takes all entries out of the selection</source>
        <translation>hebt die Auswahl aller Einträge auf</translation>
    </message>
    <message>
        <source>Alt+Up and Alt+Down</source>
        <translation>Alt+Hoch und Alt+Herunter</translation>
    </message>
    <message>
        <source>move the entry up and down in the print order</source>
        <translation>verschieben den Eintrag in der Druckreihenfolge nach oben und unten</translation>
    </message>
    <message>
        <source>Up, Down, Home and End</source>
        <translation>Hoch, Herunter, Pos1 und Ende</translation>
    </message>
    <message>
        <source>pick another entry</source>
        <translation>wählen einen anderen Eintrag</translation>
    </message>
    <message>
        <source>pick the entry that begins with them</source>
        <translation>wählen den Eintrag, der mit ihnen beginnt</translation>
    </message>
    <message>
        <source>F4 and Alt+Down</source>
        <translation>F4 und Alt+Herunter</translation>
    </message>
    <message>
        <source>open the list</source>
        <translation>klappen die Liste auf</translation>
    </message>
    <message>
        <source>Space and Enter</source>
        <translation>Leertaste und Eingabe</translation>
    </message>
    <message>
        <source>press the button</source>
        <translation>drücken die Schaltfläche</translation>
    </message>
    <message>
        <source>ticks the box, or takes the tick out</source>
        <translation>setzt oder entfernt das Häkchen</translation>
    </message>
    <message>
        <source>in the whole dialog</source>
        <translation>im ganzen Dialog</translation>
    </message>
    <message>
        <source>on the tabs</source>
        <translation>auf den Registerkarten</translation>
    </message>
    <message>
        <source>in a list</source>
        <translation>in einer Liste</translation>
    </message>
    <message>
        <source>in a list of entries to select</source>
        <translation>in einer Liste auswählbarer Einträge</translation>
    </message>
    <message>
        <source>in a list of what is printed</source>
        <translation>in einer Liste zu druckender Einträge</translation>
    </message>
    <message>
        <source>in a box with a list</source>
        <translation>in einem Feld mit Liste</translation>
    </message>
    <message>
        <source>on a button</source>
        <translation>auf einer Schaltfläche</translation>
    </message>
    <message>
        <source>on a check box</source>
        <translation>auf einem Kontrollkästchen</translation>
    </message>
    <message>
        <source>A handler failed without telling why.</source>
        <translation>Ein Aufruf ist ohne Angabe eines Grundes gescheitert.</translation>
    </message>
    <message>
        <source>, did you mean {0}?</source>
        <translation>, war {0} gemeint?</translation>
    </message>
    <message>
        <source>Undone: {0}</source>
        <translation>Rückgängig gemacht: {0}</translation>
    </message>
    <message>
        <source>Done again: {0}</source>
        <translation>Wiederholt: {0}</translation>
    </message>
    <message>
        <source>All is as it was saved</source>
        <translation>Alles ist wieder wie gespeichert</translation>
    </message>
    <message>
        <source>Loaded again</source>
        <translation>Neu geladen</translation>
    </message>
</context>
</TS>
