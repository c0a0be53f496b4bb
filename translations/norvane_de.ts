<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message>
        <source>the file or a part of it is missing</source>
        <translation>die Datei oder ein Teil davon fehlt</translation>
    </message>
    <message>
        <source>another station holds it</source>
        <translation>eine andere Arbeitsstation hält sie</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>sie ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the file is of a kind that Norvane does not read</source>
        <translation>die Datei ist von einer Art, die Norvane nicht liest</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the file went away while it was read</source>
        <translation>die Datei verschwand, während sie gelesen wurde</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>es ist nicht genug Speicher da</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Restore all files of the folder together from your last backup.</source>
        <translation>Stellen Sie alle Dateien des Ordners gemeinsam aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
    <message>
        <source>Close the database at all stations, copy the folder, and run &apos;norvanectl repair&apos;.</source>
        <translation>Schließen Sie die Datenbank an allen Arbeitsstationen, kopieren Sie den Ordner, und rufen Sie „norvanectl repair“ auf.</translation>
    </message>
    <message>
        <source>No data is lost: close the database at all stations, copy the folder, and run &apos;norvanectl repair&apos;.</source>
        <translation>Es sind keine Daten verloren: Schließen Sie die Datenbank an allen Arbeitsstationen, kopieren Sie den Ordner, und rufen Sie „norvanectl repair“ auf.</translation>
    </message>
    <message>
        <source> (at %1)</source>
        <translation> (bei %1)</translation>
    </message>
    <message>
        <source>Check again when nobody is saving.</source>
        <translation>Prüfen Sie noch einmal, wenn niemand speichert.</translation>
    </message>
    <message>
        <source>Ask for the right to read and write the folder.</source>
        <translation>Bitten Sie um das Recht, den Ordner zu lesen und zu ändern.</translation>
    </message>
    <message>
        <source>Check again when the computer that holds the folder is up.</source>
        <translation>Prüfen Sie noch einmal, wenn der Computer mit dem Ordner läuft.</translation>
    </message>
    <message>
        <source>Look whether you may read the file and whether its disk is in order, and check again. Nothing says that data is lost.</source>
        <translation>Sehen Sie nach, ob Sie die Datei lesen dürfen und ob ihr Datenträger in Ordnung ist, und prüfen Sie noch einmal. Nichts deutet darauf hin, dass Daten verloren sind.</translation>
    </message>
    <message>
        <source> This will rebuild the index from the rows.</source>
        <translation> Dies baut den Index aus den Zeilen neu auf.</translation>
    </message>
    <message>
        <source> What that cannot put right is to be restored from your last backup, all files of the folder together.</source>
        <translation> Was sich damit nicht beheben lässt, muss aus Ihrer letzten Datensicherung wiederhergestellt werden, alle Dateien des Ordners gemeinsam.</translation>
    </message>
    <message>
        <source>Notes and other long texts may be lost. </source>
        <translation>Notizen und andere lange Texte sind möglicherweise verloren. </translation>
    </message>
    <message>
        <source> This will build the index from the rows.</source>
        <translation> Dies baut den Index aus den Zeilen auf.</translation>
    </message>
    <message>
        <source>Opening the database in Norvane puts an empty one in its place; if it held data, restore it from your last backup first.</source>
        <translation>Das Öffnen der Datenbank in Norvane setzt eine leere an ihre Stelle; wenn sie Daten enthielt, stellen Sie sie vorher aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
    <message>
        <source>The table was made by another program or version. </source>
        <translation>Die Tabelle stammt von einem anderen Programm oder einer anderen Version. </translation>
    </message>
    <message>
        <source>Only one of the rows can be opened. Dump the table, and save the record that is wrong anew or delete it.</source>
        <translation>Nur eine der Zeilen kann geöffnet werden. Geben Sie die Tabelle mit „dump“ aus, und speichern Sie den falschen Datensatz neu, oder löschen Sie ihn.</translation>
    </message>
    <message>
        <source>Numbers that are in use are passed over. </source>
        <translation>Nummern, die verwendet werden, werden übersprungen. </translation>
    </message>
</context>
<context>
    <name>AttachmentFolder</name>
    <message>
        <source>No such folder or name</source>
        <translation>Diesen Ordner oder Namen gibt es nicht</translation>
    </message>
</context>
<context>
    <name>AttachmentsCtl</name>
    <message>
        <source>Attachments</source>
        <translation>Anlagen</translation>
    </message>
    <message>
        <source>0 attachment(s)</source>
        <translation>0 Anlage(n)</translation>
    </message>
    <message>
        <source>Attach a copy of a file to this record</source>
        <translation>Die Kopie einer Datei an diesen Datensatz anhängen</translation>
    </message>
    <message>
        <source>Open the attachment with the program for it (Enter)</source>
        <translation>Die Anlage mit dem zugehörigen Programm öffnen (Eingabe)</translation>
    </message>
    <message>
        <source>Save a copy of the attachment elsewhere</source>
        <translation>Eine Kopie der Anlage an anderer Stelle speichern</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>Delete the attachment (Del); F2 renames it</source>
        <translation>Die Anlage löschen (Entf); F2 benennt sie um</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation>Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>No file is attached. Press Attach File, or drop files here.</source>
        <translation>Es ist keine Datei angehängt. Wählen Sie „Datei anhängen“, oder ziehen Sie Dateien hierher.</translation>
    </message>
    <message>
        <source>No file is attached.</source>
        <translation>Es ist keine Datei angehängt.</translation>
    </message>
    <message>
        <source>%1 attachment(s)</source>
        <translation>%1 Anlage(n)</translation>
    </message>
    <message>
        <source>Open file to attach</source>
        <translation>Anzuhängende Datei öffnen</translation>
    </message>
    <message>
        <source>Unable to create directory: </source>
        <translation>Das Verzeichnis kann nicht angelegt werden: </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder. Only files can be attached.</source>
        <translation>„%1“ ist ein Ordner. Nur Dateien können angehängt werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of an attachment.</source>
        <translation>„%1“ kann nicht der Name einer Anlage sein.</translation>
    </message>
    <message>
        <source>Source and Destination files are identical!</source>
        <translation>Quell- und Zieldatei sind identisch!</translation>
    </message>
    <message>
        <source> is already attached to this document. Do you want to overwrite existing attachment?</source>
        <translation> ist bereits an diesen Datensatz angehängt. Möchten Sie die vorhandene Anlage überschreiben?</translation>
    </message>
    <message>
        <source>Copying &apos;%1&apos;...</source>
        <translation>„%1“ wird kopiert...</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%1&apos; to &apos;%2&apos;! %3.</source>
        <translation>„%1“ kann nicht nach „%2“ kopiert werden! %3.</translation>
    </message>
    <message>
        <source>Are you sure you want to PERMANENTLY DELETE this attachment: &apos;%1&apos; ?</source>
        <translation>Möchten Sie diese Anlage wirklich ENDGÜLTIG LÖSCHEN: „%1“ ?</translation>
    </message>
    <message>
        <source>Unable to delete &apos;%1&apos;!</source>
        <translation>„%1“ kann nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Save Attachment As...</source>
        <translation>Anlage speichern unter...</translation>
    </message>
    <message>
        <source> has been saved!</source>
        <translation> wurde gespeichert!</translation>
    </message>
    <message>
        <source>Are you sure you want to rename &apos;%1&apos; to &apos;%2&apos; ?</source>
        <translation>Möchten Sie „%1“ wirklich in „%2“ umbenennen ?</translation>
    </message>
    <message>
        <source>There is already an attachment named &apos;%1&apos;.</source>
        <translation>Es gibt bereits eine Anlage namens „%1“.</translation>
    </message>
    <message>
        <source>Unable to rename &apos;%1&apos; to &apos;%2&apos;!</source>
        <translation>„%1“ kann nicht in „%2“ umbenannt werden!</translation>
    </message>
    <message>
        <source>Atta&amp;ch File...</source>
        <translation>Datei anhän&amp;gen...</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Copy of </source>
        <translation>Kopie von </translation>
    </message>
</context>
<context>
    <name>ContactsGrid</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The file &apos;%1&apos; cannot be read: %2</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>CustomerItemForm</name>
    <message>
        <source>The Customer record to which this Product/Service record belongs no longer exists or is inaccessible.</source>
        <translation>Der Kunde, zu dem dieser Produkt-/Leistungs-Datensatz gehört, ist nicht mehr vorhanden oder nicht erreichbar.</translation>
    </message>
    <message>
        <source>The record was deleted, but not all of its attachments. What is left of them is in the folder &apos;%1&apos;.</source>
        <translation>Der Datensatz wurde gelöscht, aber nicht alle seine Anlagen. Was davon übrig ist, liegt im Ordner „%1“.</translation>
    </message>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos; and all of its attachments (if any)?</source>
        <translation>Möchten Sie „%1“ und alle zugehörigen Anlagen wirklich *LÖSCHEN*?</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation>Bitte berichtigen Sie die folgenden Eingabefelder:</translation>
    </message>
</context>
<context>
    <name>EditModeCtl</name>
    <message>
        <source>edit-data</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>Nur lesen</translation>
    </message>
</context>
<context>
    <name>EngineFailures</name>
    <message>
        <source>The file &apos;%1&apos; lacks a part that this program works with: %2.</source>
        <translation>Der Datei „%1“ fehlt ein Teil, mit dem dieses Programm arbeitet: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is missing. All files of a database must be together in its folder. Please restore the data folder from your latest backup.</source>
        <translation>Die Datei „%1“ fehlt. Alle Dateien einer Datenbank müssen gemeinsam in ihrem Ordner liegen. Bitte stellen Sie den Datenordner aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged</source>
        <translation>Die Datei „%1“ ist beschädigt</translation>
    </message>
    <message>
        <source> (at %1)</source>
        <translation> (bei %1)</translation>
    </message>
    <message>
        <source>.

Please make a copy of the whole data folder first. </source>
        <translation>.

Bitte machen Sie zuerst eine Kopie des gesamten Datenordners. </translation>
    </message>
    <message>
        <source>Then choose Database Maintenance to re-index this file. Your data is not in it and is not lost.</source>
        <translation>Wählen Sie dann die Datenbankwartung, um diese Datei neu zu indizieren. Ihre Daten stehen nicht darin und sind nicht verloren.</translation>
    </message>
    <message>
        <source>Then choose Database Maintenance to re-index the table, or restore the data folder from your latest backup.</source>
        <translation>Wählen Sie dann die Datenbankwartung, um die Tabelle neu zu indizieren, oder stellen Sie den Datenordner aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another workstation. Please try again in a moment.</source>
        <translation>Die Datei „%1“ wird gerade von einer anderen Arbeitsstation verwendet. Bitte versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be changed: it or its folder is read-only for you. Please ask your administrator for the right to change files in the data folder.</source>
        <translation>Die Datei „%1“ kann nicht geändert werden: Die Datei oder ihr Ordner ist für Sie schreibgeschützt. Bitte bitten Sie Ihren Administrator um das Recht, Dateien im Datenordner zu ändern.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; holds something this program does not work with: %2.</source>
        <translation>Die Datei „%1“ enthält etwas, womit dieses Programm nicht arbeitet: %2.</translation>
    </message>
    <message>
        <source>The disk that holds &apos;%1&apos; is full. Nothing was saved. Please make room and save again.</source>
        <translation>Der Datenträger mit „%1“ ist voll. Es wurde nichts gespeichert. Bitte schaffen Sie Platz, und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has reached the largest size it can have. Nothing was saved.</source>
        <translation>Die Datei „%1“ hat die größte mögliche Größe erreicht. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be reached any more. If the data folder is on another computer, please verify that computer is up and running, and then try again.</source>
        <translation>Die Datei „%1“ ist nicht mehr erreichbar. Wenn der Datenordner auf einem anderen Computer liegt, prüfen Sie bitte, ob dieser Computer läuft, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>There is not enough memory. Nothing was saved. Please close other programs and try again.</source>
        <translation>Es ist nicht genug Speicher da. Es wurde nichts gespeichert. Bitte schließen Sie andere Programme, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be read or written: %2.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen oder geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genug Speicher</translation>
    </message>
    <message>
        <source>Internal error</source>
        <translation>Interner Fehler</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>Error #: -910
Unexpected Information
Memo entry too long to return in String function. Try calling &apos;f4memoStrB&apos;.
Field Name:
%1</source>
        <translation>Fehler Nr.: -910
Unerwartete Information
Memo-Eintrag zu lang für die Rückgabe in einer String-Funktion. Versuchen Sie „f4memoStrB“.
Feldname:
%1</translation>
    </message>
    <message>
        <source>CodeBasic Error</source>
        <translation>CodeBasic-Fehler</translation>
    </message>
</context>
<context>
    <name>FileCopy</name>
    <message>
        <source>There is no such file</source>
        <translation>Diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>Source and target are the same file</source>
        <translation>Quelle und Ziel sind dieselbe Datei</translation>
    </message>
</context>
<context>
    <name>FolderCheck</name>
    <message>
        <source>the file is missing</source>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>%1 more findings like these</source>
        <translation>%1 weitere Befunde wie diese</translation>
    </message>
    <message>
        <source>The advice above holds for them too.</source>
        <translation>Der Rat darüber gilt auch für sie.</translation>
    </message>
    <message>
        <source>the field %1 is missing</source>
        <translation>das Feld %1 fehlt</translation>
    </message>
    <message>
        <source>the tag %1 is missing</source>
        <translation>der Index-Tag %1 fehlt</translation>
    </message>
    <message>
        <source>%1 rows have the rowid %2, which no record has</source>
        <translation>%1 Zeilen haben die Zeilen-ID %2, die kein Datensatz hat</translation>
    </message>
    <message>
        <source>%1 rows share the rowid %2</source>
        <translation>%1 Zeilen teilen sich die Zeilen-ID %2</translation>
    </message>
    <message>
        <source>%1 counters for %2</source>
        <translation>%1 Zähler für %2</translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2, which is none</source>
        <translation>die nächste Nummer für %1 ist %2, was keine ist</translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2, but %3 is in use already</source>
        <translation>die nächste Nummer für %1 ist %2, aber %3 wird schon verwendet</translation>
    </message>
    <message>
        <source>%1 rows name a record of %2 in the field %3 that is not there</source>
        <translation>%1 Zeilen nennen einen Datensatz von %2 im Feld %3, den es nicht gibt</translation>
    </message>
    <message>
        <source>The screens show nothing in that place.</source>
        <translation>Die Fenster zeigen an dieser Stelle nichts.</translation>
    </message>
</context>
<context>
    <name>FolderRepair</name>
    <message>
        <source>the file was missing and is there again, empty</source>
        <translation>die Datei fehlte und ist wieder da, leer</translation>
    </message>
    <message>
        <source>the file is missing</source>
        <translation>die Datei fehlt</translation>
    </message>
    <message>
        <source>%1 more lines like these</source>
        <translation>%1 weitere Zeilen wie diese</translation>
    </message>
    <message>
        <source>it is open at another station, so it was left as it is</source>
        <translation>sie ist an einer anderen Arbeitsstation geöffnet und blieb daher, wie sie ist</translation>
    </message>
    <message>
        <source>a row has the highest rowid there can be</source>
        <translation>eine Zeile hat die höchste mögliche Zeilen-ID</translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2 now</source>
        <translation>die nächste Nummer für %1 ist jetzt %2</translation>
    </message>
</context>
<context>
    <name>GridSaving</name>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>MS Excel Comma Delimited File (*.csv)|*.csv</source>
        <translation>CSV-Datei von MS Excel (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>%1 has been saved. Would you like to open this file now?</source>
        <translation>%1 wurde gespeichert. Möchten Sie diese Datei jetzt öffnen?</translation>
    </message>
</context>
<context>
    <name>GuiPrinting</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>HelpPopup</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>%1 Help</source>
        <translation>Hilfe zu %1</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Fo&amp;rward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Suchen:</translation>
    </message>
</context>
<context>
    <name>ImportPreview</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Import Data Preview</source>
        <translation>Vorschau der Importdaten</translation>
    </message>
    <message>
        <source>Preparing preview of data. If you don&apos;t care to see a preview of the entire file, you may press cancel to continue</source>
        <translation>Die Vorschau der Daten wird vorbereitet. Wenn Sie keine Vorschau der gesamten Datei brauchen, brechen Sie ab, um fortzufahren</translation>
    </message>
</context>
<context>
    <name>ImportRun</name>
    <message>
        <source>Import Data</source>
        <translation>Daten importieren</translation>
    </message>
    <message>
        <source>Integrating data. Please wait...</source>
        <translation>Daten werden übernommen. Bitte warten...</translation>
    </message>
    <message>
        <source>Unable to open Customer table!</source>
        <translation>Die Kundentabelle kann nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Unable to open Category table!</source>
        <translation>Die Kategorientabelle kann nicht geöffnet werden!</translation>
    </message>
</context>
<context>
    <name>ImportTargets</name>
    <message>
        <source>A sample import file called &apos;%1&apos; is available in %2 to get you started. You can open this file with MS Excel.</source>
        <translation>Eine Beispieldatei für den Import namens „%1“ liegt in %2, um Ihnen den Anfang zu erleichtern. Sie können diese Datei mit MS Excel öffnen.</translation>
    </message>
    <message>
        <source>The import file format required is a Comma Separated Value file, usually prepared in MS Excel and Saved, As &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation>Die Importdatei muss kommagetrennte Werte (CSV) enthalten; üblicherweise wird sie in MS Excel vorbereitet und mit „Speichern unter“ als „CSV (durch Trennzeichen getrennt)“ gespeichert.</translation>
    </message>
    <message>
        <source>Here&apos;s how an import file should look like when opened with Windows Notepad Application:</source>
        <translation>So sollte eine Importdatei aussehen, wenn sie mit dem Windows-Editor geöffnet wird:</translation>
    </message>
    <message>
        <source>%1 allows you to import items into this list from a file. </source>
        <translation>Mit %1 können Sie Einträge aus einer Datei in diese Liste importieren. </translation>
    </message>
    <message>
        <source>The first row (Row 1) of the import file must contain column headings. The only column heading required for this import is:</source>
        <translation>Die erste Zeile (Zeile 1) der Importdatei muss Spaltenüberschriften enthalten. Die einzige für diesen Import erforderliche Spaltenüberschrift ist:</translation>
    </message>
    <message>
        <source>All rows (except the first row which must contain the column heading) in the import file are added as NEW items into the list. Description for each item should appear starting from Row 2. We recommend preparing this file in MS Excel and saving as &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation>Alle Zeilen der Importdatei (außer der ersten, die die Spaltenüberschrift enthalten muss) werden als NEUE Einträge in die Liste aufgenommen. Die Beschreibung der einzelnen Einträge muss in Zeile 2 beginnen. Wir empfehlen, die Datei in MS Excel vorzubereiten und als „CSV (durch Trennzeichen getrennt)“ zu speichern.</translation>
    </message>
    <message>
        <source>%1 allows you to import Customer information into its database from a file. </source>
        <translation>Mit %1 können Sie Kundendaten aus einer Datei in die Datenbank importieren. </translation>
    </message>
    <message>
        <source>The first row (Row 1) of the import file must contain column headings. The only column headings required for this import file are LASTNAME and COMPANY. The rest of the columns are optional. Here&apos;s a list of all the recognized/importable column headings:</source>
        <translation>Die erste Zeile (Zeile 1) der Importdatei muss Spaltenüberschriften enthalten. Die einzigen für diese Importdatei erforderlichen Spaltenüberschriften sind LASTNAME und COMPANY. Alle anderen Spalten können entfallen. Hier ist eine Liste aller bekannten Spaltenüberschriften:</translation>
    </message>
    <message>
        <source>Each column heading must appear in a separate column. All rows (except the first row which must contain the column heading) in the import file are added as NEW customers. Data for each customer should appear starting from Row 2. We recommend preparing this file in MS Excel and saving as &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation>Jede Spaltenüberschrift muss in einer eigenen Spalte stehen. Alle Zeilen der Importdatei (außer der ersten, die die Spaltenüberschriften enthalten muss) werden als NEUE Kunden aufgenommen. Die Daten der einzelnen Kunden müssen in Zeile 2 beginnen. Wir empfehlen, die Datei in MS Excel vorzubereiten und als „CSV (durch Trennzeichen getrennt)“ zu speichern.</translation>
    </message>
    <message>
        <source>Lookup List: </source>
        <translation>Auswahlliste: </translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Customer %1</source>
        <translation>Kunde: %1</translation>
    </message>
    <message>
        <source>Products &amp; Services</source>
        <translation>Produkte &amp; Leistungen</translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation>Vertragsarten</translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation>Vertragslaufzeiten</translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation>Vorgangsstatus</translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation>Vorgangsaktionen</translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation>Vorgangsprioritäten</translation>
    </message>
    <message>
        <source>Issue %1</source>
        <translation>Vorgang: %1</translation>
    </message>
    <message>
        <source>IMPORT - %1</source>
        <translation>IMPORT - %1</translation>
    </message>
</context>
<context>
    <name>IssueActionsCtl</name>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Total Duration = 0.00</source>
        <translation>Gesamtdauer = 0.00</translation>
    </message>
    <message>
        <source>Note an action</source>
        <translation>Eine Aktion eintragen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Open the selected action</source>
        <translation>Die ausgewählte Aktion öffnen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete the selected action</source>
        <translation>Die ausgewählte Aktion löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>No action has been noted for this issue yet.</source>
        <translation>Zu diesem Vorgang ist noch keine Aktion eingetragen.</translation>
    </message>
    <message>
        <source>Total Duration = </source>
        <translation>Gesamtdauer = </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Issue Action has been deleted!</source>
        <translation>Die Vorgangsaktion wurde gelöscht!</translation>
    </message>
</context>
<context>
    <name>IssueFieldsCtl</name>
    <message>
        <source>Customer Name:</source>
        <translation>Kundenname:</translation>
    </message>
    <message>
        <source>Open the customer</source>
        <translation>Den Kunden öffnen</translation>
    </message>
    <message>
        <source>Double-click to open the customer</source>
        <translation>Doppelklicken, um den Kunden zu öffnen</translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation>Produkt/Leistung:</translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation>Liste ändern</translation>
    </message>
    <message>
        <source>Modify list of products and services</source>
        <translation>Liste der Produkte und Leistungen ändern</translation>
    </message>
    <message>
        <source>Short Description:</source>
        <translation>Kurzbeschreibung:</translation>
    </message>
    <message>
        <source>Assigned To:</source>
        <translation>Zugewiesen an:</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorität:</translation>
    </message>
    <message>
        <source>Modify list of issue priorities</source>
        <translation>Liste der Vorgangsprioritäten ändern</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Modify list of issue statuses</source>
        <translation>Liste der Vorgangsstatus ändern</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Modify list of issue categories</source>
        <translation>Liste der Vorgangskategorien ändern</translation>
    </message>
    <message>
        <source>Submit Date:</source>
        <translation>Eingangsdatum:</translation>
    </message>
    <message>
        <source>Pick a date from the calendar</source>
        <translation>Ein Datum aus dem Kalender wählen</translation>
    </message>
    <message>
        <source>Calendar for the submit date</source>
        <translation>Kalender für das Eingangsdatum</translation>
    </message>
    <message>
        <source>Response Date:</source>
        <translation>Antwortdatum:</translation>
    </message>
    <message>
        <source>Calendar for the response date</source>
        <translation>Kalender für das Antwortdatum</translation>
    </message>
    <message>
        <source>Resolution Date:</source>
        <translation>Lösungsdatum:</translation>
    </message>
    <message>
        <source>Calendar for the resolution date</source>
        <translation>Kalender für das Lösungsdatum</translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation>Eigenes Feld 1:</translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation>Liste der Einträge für das erste eigene Feld ändern</translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation>Eigenes Feld 2:</translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation>Liste der Einträge für das zweite eigene Feld ändern</translation>
    </message>
</context>
<context>
    <name>IssueRecordForm</name>
    <message>
        <source>Short Description:</source>
        <translation>Kurzbeschreibung:</translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation>Produkt/Leistung:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorität:</translation>
    </message>
    <message>
        <source>Assigned To::</source>
        <translation>Zugewiesen an::</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Lösung:</translation>
    </message>
</context>
<context>
    <name>LabelledLine</name>
    <message>
        <source>Last Modified By:</source>
        <translation>Geändert von:</translation>
    </message>
    <message>
        <source>Last Modified On:</source>
        <translation>Geändert am:</translation>
    </message>
    <message>
        <source>Last Modified At:</source>
        <translation>Geändert um:</translation>
    </message>
</context>
<context>
    <name>ListBoxes</name>
    <message>
        <source>Please select a listbox item first!</source>
        <translation>Bitte wählen Sie zuerst einen Eintrag der Liste aus!</translation>
    </message>
</context>
<context>
    <name>ListViewFiles</name>
    <message>
        <source> KB</source>
        <translation> KB</translation>
    </message>
</context>
<context>
    <name>LongSort</name>
    <message>
        <source>Sorting the list. Please wait...</source>
        <translation>Die Liste wird sortiert. Bitte warten...</translation>
    </message>
</context>
<context>
    <name>LookupLists</name>
    <message>
        <source>Edit Customer Categories</source>
        <translation>Kundenkategorien bearbeiten</translation>
    </message>
    <message>
        <source>Customer Categories</source>
        <translation>Kundenkategorien</translation>
    </message>
    <message>
        <source>Edit Products/Services</source>
        <translation>Produkte/Leistungen bearbeiten</translation>
    </message>
    <message>
        <source>Products/Services</source>
        <translation>Produkte/Leistungen</translation>
    </message>
    <message>
        <source>Edit States/Provinces</source>
        <translation>Bundesländer/Provinzen bearbeiten</translation>
    </message>
    <message>
        <source>States/Provinces</source>
        <translation>Bundesländer/Provinzen</translation>
    </message>
    <message>
        <source>Edit Countries</source>
        <translation>Länder bearbeiten</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>Edit Issue Statuses</source>
        <translation>Vorgangsstatus bearbeiten</translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation>Vorgangsstatus</translation>
    </message>
    <message>
        <source>Edit Issue Priorities</source>
        <translation>Vorgangsprioritäten bearbeiten</translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation>Vorgangsprioritäten</translation>
    </message>
    <message>
        <source>Edit Contract Types</source>
        <translation>Vertragsarten bearbeiten</translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation>Vertragsarten</translation>
    </message>
    <message>
        <source>Edit Contract Durations</source>
        <translation>Vertragslaufzeiten bearbeiten</translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation>Vertragslaufzeiten</translation>
    </message>
    <message>
        <source>Edit Issue Categories</source>
        <translation>Vorgangskategorien bearbeiten</translation>
    </message>
    <message>
        <source>Issue Categories</source>
        <translation>Vorgangskategorien</translation>
    </message>
    <message>
        <source>Edit Issue Actions</source>
        <translation>Vorgangsaktionen bearbeiten</translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation>Vorgangsaktionen</translation>
    </message>
    <message>
        <source>Edit Quick Entry List</source>
        <translation>Schnelleingabeliste bearbeiten</translation>
    </message>
    <message>
        <source>Quick Entry List</source>
        <translation>Schnelleingabeliste</translation>
    </message>
</context>
<context>
    <name>Mail</name>
    <message>
        <source>Unable to initiate your email software! 

There is no Microsoft SIMPLE MAPI (Messaging Application Programming Interface) compatible email application (such Microsoft Outlook EXPRESS) installed on your machine.

Please choose View, Options menu to check or change your Email options.</source>
        <translation>Ihr E-Mail-Programm kann nicht gestartet werden! 

Auf Ihrem Computer ist kein E-Mail-Programm installiert, das mit Microsoft SIMPLE MAPI (Messaging Application Programming Interface) arbeitet (wie Microsoft Outlook EXPRESS).

Bitte wählen Sie das Menü Ansicht, Optionen, um Ihre E-Mail-Optionen zu prüfen oder zu ändern.</translation>
    </message>
    <message>
        <source>Unable to initiate Microsoft Outlook!

If you intend to use Microsoft Outlook, please make sure Microsoft Outlook is installed on your machine and is functioning properly.

Please choose View, Options menu to check or change your Email options.</source>
        <translation>Microsoft Outlook kann nicht gestartet werden!

Wenn Sie Microsoft Outlook verwenden möchten, vergewissern Sie sich bitte, dass Microsoft Outlook auf Ihrem Computer installiert ist und einwandfrei arbeitet.

Bitte wählen Sie das Menü Ansicht, Optionen, um Ihre E-Mail-Optionen zu prüfen oder zu ändern.</translation>
    </message>
</context>
<context>
    <name>MailMerge</name>
    <message>
        <source>The template of the mail merge file, &apos;%1&apos;, could not be copied.</source>
        <translation>Die Vorlage der Seriendruckdatei, „%1“, konnte nicht kopiert werden.</translation>
    </message>
</context>
<context>
    <name>PrintDoor</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>PDF File (*.pdf)|*.pdf</source>
        <translation>PDF-Datei (*.pdf)|*.pdf</translation>
    </message>
</context>
<context>
    <name>PrintList</name>
    <message>
        <source>The list is empty. There is nothing to print.</source>
        <translation>Die Liste ist leer. Es gibt nichts zu drucken.</translation>
    </message>
</context>
<context>
    <name>PrintPages</name>
    <message>
        <source>Printer error</source>
        <translation>Druckerfehler</translation>
    </message>
</context>
<context>
    <name>PrintProgress</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Preparing pages. Please wait...</source>
        <translation>Die Seiten werden vorbereitet. Bitte warten...</translation>
    </message>
    <message>
        <source>Preparing page %1 of %2. Please wait...</source>
        <translation>Seite %1 von %2 wird vorbereitet. Bitte warten...</translation>
    </message>
</context>
<context>
    <name>ProductReportRun</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Cust Id</source>
        <translation>Kunden-ID</translation>
    </message>
    <message>
        <source>Is Active?</source>
        <translation>Ist aktiv?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NEIN</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unable to open the user manual &apos;%1&apos;. Please install %2 again.</source>
        <translation>Das Benutzerhandbuch „%1“ kann nicht geöffnet werden. Bitte installieren Sie %2 erneut.</translation>
    </message>
</context>
<context>
    <name>RecordForm</name>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich *LÖSCHEN*?</translation>
    </message>
    <message>
        <source>Cancel Edi&amp;t</source>
        <translation>Bea&amp;rbeiten abbrechen</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Do you wish to discard your changes (if any)?</source>
        <translation>Möchten Sie Ihre Änderungen (falls vorhanden) verwerfen?</translation>
    </message>
    <message>
        <source>&lt;&lt;Verify Email Address and Enter Subject&gt;&gt;</source>
        <translation>&lt;&lt;E-Mail-Adresse prüfen und Betreff eingeben&gt;&gt;</translation>
    </message>
    <message>
        <source>DELETE Confirmation</source>
        <translation>Löschen bestätigen</translation>
    </message>
</context>
<context>
    <name>Reindex</name>
    <message>
        <source>the file &apos;%1&apos; is missing; please re-install the program</source>
        <translation>die Datei &apos;%1&apos; fehlt; bitte installieren Sie das Programm neu</translation>
    </message>
    <message>
        <source>the index could not be copied to &apos;%1&apos;; the folder may be read-only or the disk full</source>
        <translation>der Index konnte nicht nach &apos;%1&apos; kopiert werden; vielleicht ist der Ordner schreibgeschützt oder der Datenträger voll</translation>
    </message>
    <message>
        <source>it is open at another station</source>
        <translation>sie ist an einem anderen Arbeitsplatz geöffnet</translation>
    </message>
</context>
<context>
    <name>ReportRun</name>
    <message>
        <source>Invalid table name found in the report column table!</source>
        <translation>In der Tabelle der Berichtsspalten steht ein ungültiger Tabellenname!</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Invalid report type!</source>
        <translation>Ungültige Berichtsart!</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Rows of the report</source>
        <translation>Zeilen des Berichts</translation>
    </message>
    <message>
        <source>Open selected record</source>
        <translation>Den ausgewählten Datensatz öffnen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Find a text in the report (Ctrl+F)</source>
        <translation>Einen Text im Bericht suchen (Strg+F)</translation>
    </message>
    <message>
        <source>F&amp;ind...</source>
        <translation>Su&amp;chen...</translation>
    </message>
    <message>
        <source>Read the report again (F5)</source>
        <translation>Den Bericht neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Write to the customers of the report</source>
        <translation>An die Kunden des Berichts schreiben</translation>
    </message>
    <message>
        <source>&amp;Email...</source>
        <translation>E-&amp;Mail...</translation>
    </message>
    <message>
        <source>Make a mail merge file of the customers</source>
        <translation>Eine Seriendruckdatei der Kunden erstellen</translation>
    </message>
    <message>
        <source>&amp;Mail Merge...</source>
        <translation>S&amp;eriendruck...</translation>
    </message>
    <message>
        <source>Save as a comma-delimited file (Ctrl+S)</source>
        <translation>Als CSV-Datei speichern (Strg+S)</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Print the report (Ctrl+P)</source>
        <translation>Den Bericht drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Report definition does not specify any columns to display!</source>
        <translation>Die Berichtsdefinition nennt keine anzuzeigenden Spalten!</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> Zeilen</translation>
    </message>
    <message>
        <source>Preparing Report</source>
        <translation>Bericht wird vorbereitet</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>This report cannot be re-sorted because the report definition &apos;Suppresses repeating values&apos; in the first column of the report!</source>
        <translation>Dieser Bericht kann nicht umsortiert werden, da die Berichtsdefinition wiederholte Werte in der ersten Spalte unterdrückt!</translation>
    </message>
    <message>
        <source>Please select a row first!</source>
        <translation>Bitte wählen Sie zuerst eine Zeile aus!</translation>
    </message>
    <message>
        <source>Find in </source>
        <translation>Suchen in </translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the top of this view?</source>
        <translation>Keine weiteren Vorkommen von „%1“ gefunden! Möchten Sie am Anfang dieser Ansicht weitersuchen?</translation>
    </message>
    <message>
        <source>No occurences of &apos;%1&apos; found!</source>
        <translation>Kein Vorkommen von „%1“ gefunden!</translation>
    </message>
    <message>
        <source>The report is empty. There is nothing to print.</source>
        <translation>Der Bericht ist leer. Es gibt nichts zu drucken.</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source> is already running!</source>
        <translation> läuft bereits!</translation>
    </message>
</context>
<context>
    <name>StatisticCtl</name>
    <message>
        <source>Last Modified</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>On:</source>
        <translation>Am:</translation>
    </message>
    <message>
        <source>At:</source>
        <translation>Um:</translation>
    </message>
</context>
<context>
    <name>TextSaving</name>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>%1 has been saved as MS Word document.</source>
        <translation>%1 wurde als MS-Word-Dokument gespeichert.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>MS Word (*.doc)|*.doc|Rich Text Format (*.rtf)|*.rtf|Text Document (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>MS Word (*.doc)|*.doc|Rich-Text-Format (*.rtf)|*.rtf|Textdokument (*.txt)|*.txt|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Untitled </source>
        <translation>Unbenannt </translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>Unable to write to : %1. %2</source>
        <translation>Es kann nicht geschrieben werden in : %1. %2</translation>
    </message>
    <message>
        <source>This file may already be open by another application.</source>
        <translation>Diese Datei ist möglicherweise bereits in einem anderen Programm geöffnet.</translation>
    </message>
</context>
<context>
    <name>WordConversion</name>
    <message>
        <source>Unable to convert to an MS Word document: %1
The text has been saved in %2</source>
        <translation>Die Umwandlung in ein MS-Word-Dokument ist nicht möglich: %1
Der Text wurde gespeichert in %2</translation>
    </message>
    <message>
        <source>MS Word must be installed to use this option!</source>
        <translation>MS Word muss installiert sein, um diese Option zu verwenden!</translation>
    </message>
    <message>
        <source>Converting to an MS Word document. Please wait...</source>
        <translation>Der Text wird in ein MS-Word-Dokument umgewandelt. Bitte warten...</translation>
    </message>
</context>
<context>
    <name>clsCustomLabels</name>
    <message>
        <source>Customer Number</source>
        <translation>Kundennummer</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Address (line 1)</source>
        <translation>Adresse (Zeile 1)</translation>
    </message>
    <message>
        <source>Address (line 2)</source>
        <translation>Adresse (Zeile 2)</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Postal Code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Work Phone</source>
        <translation>Tel. geschäftlich</translation>
    </message>
    <message>
        <source>Home Phone</source>
        <translation>Tel. privat</translation>
    </message>
    <message>
        <source>Mobile Phone</source>
        <translation>Mobiltelefon</translation>
    </message>
    <message>
        <source>Fax Phone</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>Default Email</source>
        <translation>Standard-E-Mail</translation>
    </message>
    <message>
        <source>Alternate Email</source>
        <translation>Weitere E-Mail</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>Eigenes Feld 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>Eigenes Feld 2</translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>Contract or Part Number</source>
        <translation>Vertrags-/Teilenummer</translation>
    </message>
    <message>
        <source>Tracking Number:</source>
        <translation>Verfolgungsnummer:</translation>
    </message>
    <message>
        <source>Contract Type</source>
        <translation>Vertragsart</translation>
    </message>
    <message>
        <source>Contract Duration</source>
        <translation>Vertragslaufzeit</translation>
    </message>
    <message>
        <source>Date Initiated</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Date Terminated</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Customer %1</source>
        <translation>Kunde: %1</translation>
    </message>
    <message>
        <source>Issue %1</source>
        <translation>Vorgang: %1</translation>
    </message>
</context>
<context>
    <name>clsDB</name>
    <message>
        <source>Record cannot be accessed or no longer exists. It may have been deleted by another user.</source>
        <translation>Der Datensatz ist nicht erreichbar oder nicht mehr vorhanden. Möglicherweise hat ihn ein anderer Benutzer gelöscht.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be created. The folder may be read-only or the disk full.</source>
        <translation>Die Datei „%1“ konnte nicht angelegt werden. Der Ordner ist möglicherweise schreibgeschützt oder der Datenträger voll.</translation>
    </message>
    <message>
        <source>%1 database consists of the following %2 files. All these files must exist together in a directory before a database can be opened. All these files must be BACKed up together as a unit and if needed, RESTOREd together as a unit

%3

NOTE: The attachments of your records are stored in the subdirectory &apos;%4&apos; under your Norvane Data directory. Therefore, you will also need to back up all directories and files under %4</source>
        <translation>Eine %1-Datenbank besteht aus den folgenden %2 Dateien. Alle diese Dateien müssen gemeinsam in einem Verzeichnis liegen, damit eine Datenbank geöffnet werden kann. Alle diese Dateien müssen gemeinsam GESICHERT und bei Bedarf gemeinsam WIEDERHERGESTELLT werden

%3

HINWEIS: Die Anlagen Ihrer Datensätze liegen im Unterverzeichnis „%4“ Ihres Norvane-Datenverzeichnisses. Sie müssen daher auch alle Verzeichnisse und Dateien unter %4 sichern</translation>
    </message>
    <message>
        <source>If you have not previously created %1 database, please choose File, New Database... menu or if you have moved the %1 database files to another location choose File, Open Database... menu and select the directory that contains these files.</source>
        <translation>Wenn Sie noch keine %1-Datenbank angelegt haben, wählen Sie bitte das Menü Datei, Neue Datenbank...; wenn Sie die %1-Datenbankdateien an einen anderen Ort verschoben haben, wählen Sie das Menü Datei, Datenbank öffnen... und dann das Verzeichnis mit diesen Dateien.</translation>
    </message>
    <message>
        <source>OPEN FAILED!
The following data files are missing from the directory &apos;%1&apos;:
%2</source>
        <translation>ÖFFNEN FEHLGESCHLAGEN!
Im Verzeichnis „%1“ fehlen die folgenden Datendateien:
%2</translation>
    </message>
    <message>
        <source>NEW DATABASE CREATION FAILED!
The following data files already exist in the directory &apos;%1&apos;:
%2
Please select a directory that does not already contain %3 database or choose File, Open Database... menu to open an existing database.</source>
        <translation>ANLEGEN DER DATENBANK FEHLGESCHLAGEN!
Im Verzeichnis „%1“ gibt es die folgenden Datendateien bereits:
%2
Bitte wählen Sie ein Verzeichnis, das noch keine %3-Datenbank enthält, oder wählen Sie das Menü Datei, Datenbank öffnen..., um eine vorhandene Datenbank zu öffnen.</translation>
    </message>
    <message>
        <source>Please try re-installing %1 to resolve this issue.</source>
        <translation>Bitte installieren Sie %1 erneut, um das Problem zu beheben.</translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to get next id (locked)!</source>
        <translation>DATENSATZ GESPERRT: Die nächste Nummer ist nicht zu bekommen (gesperrt)!</translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to update record!</source>
        <translation>DATENSATZ GESPERRT: Der Datensatz kann nicht geändert werden!</translation>
    </message>
    <message>
        <source>CODE4 could NOT be initialized!</source>
        <translation>CODE4 konnte NICHT gestartet werden!</translation>
    </message>
    <message>
        <source>OPEN FAILED!
Directory &apos;%1&apos; does not exist OR is NOT accessible at this time. If this directory is located on another computer on the network, please verify that computer is up and running.</source>
        <translation>ÖFFNEN FEHLGESCHLAGEN!
Das Verzeichnis „%1“ ist nicht vorhanden ODER derzeit NICHT erreichbar. Wenn es auf einem anderen Computer im Netz liegt, prüfen Sie bitte, ob dieser Computer läuft.</translation>
    </message>
    <message>
        <source>Only the users who have &apos;admin&apos; role can perform this action!

If you believe you should be able to perform this function, please ask your administrator to change your role to &apos;admin&apos; (See Database Admin, User Management icon).</source>
        <translation>Nur Benutzer mit der Rolle „Administrator“ dürfen dies tun!

Wenn Sie meinen, dass Sie dies tun dürfen sollten, bitten Sie Ihren Administrator, Ihre Rolle auf „Administrator“ zu ändern (siehe Datenbankverwaltung, Symbol Benutzerverwaltung).</translation>
    </message>
    <message>
        <source>Sorry, you are not permitted to perform this action. Please ask your system administrator to grant this permission to your login &apos;%1&apos;. After your system administrator has granted you the permission, you will need to close down and then re-open %2.</source>
        <translation>Leider dürfen Sie dies nicht tun. Bitte bitten Sie Ihren Systemadministrator, Ihrem Anmeldenamen „%1“ dieses Recht zu geben. Nachdem Ihr Systemadministrator Ihnen das Recht gegeben hat, müssen Sie %2 schließen und erneut öffnen.</translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to update %1!</source>
        <translation>DATENSATZ GESPERRT: %1 kann nicht geändert werden!</translation>
    </message>
    <message>
        <source>Unable to update this item in table %1! It may have been deleted by another user. Press Refresh to get the latest list.</source>
        <translation>Dieser Eintrag der Tabelle %1 kann nicht geändert werden! Möglicherweise hat ihn ein anderer Benutzer gelöscht. Klicken Sie auf „Aktualisieren“, um die neueste Liste zu erhalten.</translation>
    </message>
    <message>
        <source>OPEN FAILED!
The directory &apos;%1&apos; does not take record locks (%2). Without them workstations would overwrite each other&apos;s work.

Please ask your administrator to switch on file locking for this network directory.</source>
        <translation>ÖFFNEN FEHLGESCHLAGEN!
Das Verzeichnis „%1“ nimmt keine Datensatzsperren an (%2). Ohne sie würden Arbeitsstationen einander die Arbeit überschreiben.

Bitte bitten Sie Ihren Administrator, für dieses Netzwerkverzeichnis das Sperren von Dateien einzuschalten.</translation>
    </message>
    <message>
        <source>the record locks of the workstations do not reach each other</source>
        <translation>die Datensatzsperren der Arbeitsstationen einander nicht erreichen</translation>
    </message>
    <message>
        <source>the file &apos;%1&apos; is damaged</source>
        <translation>die Datei „%1“ beschädigt ist</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged (%2), and mending it could lose something. Therefore this database is open for reading only: what can be read can be looked at, and nothing can be changed.

Please make a copy of the whole data folder first. Then let everybody close the database and run &apos;norvanectl repair&apos;, or restore the data folder from your latest backup.</source>
        <translation>Die Datei „%1“ ist beschädigt (%2), und beim Beheben könnte etwas verloren gehen. Darum ist diese Datenbank nur zum Lesen geöffnet: Was lesbar ist, kann angesehen werden, und nichts kann geändert werden.

Bitte machen Sie zuerst eine Kopie des gesamten Datenordners. Lassen Sie dann alle die Datenbank schließen, und rufen Sie „norvanectl repair“ auf, oder stellen Sie den Datenordner aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
    <message>
        <source>you have no right to change the file &apos;%1&apos;</source>
        <translation>Sie kein Recht haben, die Datei „%1“ zu ändern</translation>
    </message>
    <message>
        <source>You have no right to change the file &apos;%1&apos;. Therefore this database is open for reading only: everything can be looked at, and nothing can be changed.

Please ask your administrator for the right to change the files in the data folder. Then open the database again.</source>
        <translation>Sie haben kein Recht, die Datei „%1“ zu ändern. Darum ist diese Datenbank nur zum Lesen geöffnet: Alles kann angesehen werden, und nichts kann geändert werden.

Bitte bitten Sie Ihren Administrator um das Recht, die Dateien im Datenordner zu ändern. Öffnen Sie die Datenbank dann noch einmal.</translation>
    </message>
    <message>
        <source>Nothing was changed: this database is open for reading only, because %1.</source>
        <translation>Es wurde nichts geändert: Diese Datenbank ist nur zum Lesen geöffnet, weil %1.</translation>
    </message>
    <message>
        <source>ROWID NOT FOUND: Unable to update record!</source>
        <translation>ZEILEN-ID NICHT GEFUNDEN: Der Datensatz kann nicht geändert werden!</translation>
    </message>
    <message>
        <source>Unable to read row_id %1 from table %2</source>
        <translation>Zeile %1 der Tabelle %2 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to Delete from %1(id=%2) !</source>
        <translation>DATENSATZ GESPERRT: Löschen aus %1(id=%2) nicht möglich !</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Unable to open: %1</source>
        <translation>Kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Unable to create subdirectory for attachments: &apos;%1&apos;</source>
        <translation>Das Unterverzeichnis für Anlagen kann nicht angelegt werden: „%1“</translation>
    </message>
    <message>
        <source>The record locks of the workstations in &apos;%1&apos; do not reach each other, so that two people could overwrite each other&apos;s work. Therefore this database is now open for reading only.

Please ask your administrator to connect this network directory with working locks at every workstation (without options like nolock, local_lock or nobrl). Then open the database again.</source>
        <translation>Die Datensatzsperren der Arbeitsplätze in „%1“ erreichen einander nicht, sodass zwei Personen die Arbeit der jeweils anderen überschreiben könnten. Daher ist diese Datenbank nun nur zum Lesen geöffnet.

Bitten Sie Ihre Systemverwaltung, dieses Netzwerkverzeichnis an jedem Arbeitsplatz mit funktionierenden Sperren zu verbinden (ohne Optionen wie nolock, local_lock oder nobrl). Öffnen Sie die Datenbank danach erneut.</translation>
    </message>
    <message>
        <source>administrator</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>user</source>
        <translation>Benutzer</translation>
    </message>
</context>
<context>
    <name>clsDBBulk</name>
    <message>
        <source>Adding issues</source>
        <translation>Vorgänge werden angelegt</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Bitte warten...</translation>
    </message>
</context>
<context>
    <name>clsDBUtil</name>
    <message>
        <source>No database is currently open. See File menu.</source>
        <translation>Zurzeit ist keine Datenbank geöffnet. Siehe Menü Datei.</translation>
    </message>
    <message>
        <source>No Database Open</source>
        <translation>Keine Datenbank geöffnet</translation>
    </message>
</context>
<context>
    <name>clsImportData</name>
    <message>
        <source>must be numeric.</source>
        <translation>muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>must be between %1 and %2.</source>
        <translation>muss zwischen %1 und %2 liegen.</translation>
    </message>
    <message>
        <source>must be a valid date.</source>
        <translation>muss ein gültiges Datum sein.</translation>
    </message>
    <message>
        <source>must be either &apos;Y&apos; or &apos;N&apos;.</source>
        <translation>muss „Y“ oder „N“ sein.</translation>
    </message>
    <message>
        <source>%1: A value must be entered for column %2.</source>
        <translation>%1: Für die Spalte %2 muss ein Wert eingegeben werden.</translation>
    </message>
    <message>
        <source>%1: The value [%2] entered for column %3 %4</source>
        <translation>%1: Der Wert [%2] der Spalte %3 %4</translation>
    </message>
    <message>
        <source>%1: Missing data. Number of entries on this row do NOT equal the number of columns on the first row. LINE CONTENT: %2</source>
        <translation>%1: Fehlende Daten. Die Anzahl der Einträge in dieser Zeile stimmt NICHT mit der Anzahl der Spalten in der ersten Zeile überein. ZEILENINHALT: %2</translation>
    </message>
    <message>
        <source>Required column &apos;%1&apos; is missing from the first row.</source>
        <translation>Die erforderliche Spalte „%1“ fehlt in der ersten Zeile.</translation>
    </message>
    <message>
        <source>Unrecognized column &apos;%1&apos; found on the first row.</source>
        <translation>Unbekannte Spalte „%1“ in der ersten Zeile.</translation>
    </message>
    <message>
        <source>Unable to read column headers from row 1 of file %1</source>
        <translation>Aus Zeile 1 der Datei %1 können keine Spaltenüberschriften gelesen werden</translation>
    </message>
    <message>
        <source>Import Data</source>
        <translation>Daten importieren</translation>
    </message>
    <message>
        <source>Validating Data. Please wait...</source>
        <translation>Die Daten werden geprüft. Bitte warten...</translation>
    </message>
    <message>
        <source>%1: The line is too long.</source>
        <translation>%1: Die Zeile ist zu lang.</translation>
    </message>
    <message>
        <source>MORE THAN 50 ERRORS ENCOUNTERED. ABORTING...</source>
        <translation>MEHR ALS 50 FEHLER GEFUNDEN. ABBRUCH...</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>The file changed while it was checked. Try again when no other program writes to it.</source>
        <translation>Die Datei hat sich während der Prüfung geändert. Versuchen Sie es erneut, wenn kein anderes Programm in sie schreibt.</translation>
    </message>
</context>
<context>
    <name>clsSystem</name>
    <message>
        <source>Unable to write to : %1. This file may already be open by another application.</source>
        <translation>Es kann nicht geschrieben werden in : %1. Diese Datei ist möglicherweise bereits in einem anderen Programm geöffnet.</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Unable to open folder &apos;%1&apos;</source>
        <translation>Der Ordner „%1“ kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unable to launch &apos;%1&apos;! No application may be associated with this file type.</source>
        <translation>„%1“ kann nicht gestartet werden! Vielleicht ist diesem Dateityp kein Programm zugeordnet.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Error # %1 was generated by %2</source>
        <translation>Fehler Nr. %1 wurde gemeldet von %2</translation>
    </message>
    <message>
        <source>Please enter a numeric value!</source>
        <translation>Bitte geben Sie eine Zahl ein!</translation>
    </message>
</context>
<context>
    <name>frmCalendar</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Goto today&apos;s date</source>
        <translation>Zum heutigen Datum gehen</translation>
    </message>
    <message>
        <source>&amp;Go to Today</source>
        <translation>&amp;Heute</translation>
    </message>
</context>
<context>
    <name>frmChangePWD</name>
    <message>
        <source>Change Password</source>
        <translation>Kennwort ändern</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>K&amp;ennwort:</translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation>&amp;Kennwort wiederholen:</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Incorrect Password, try again!</source>
        <translation>Falsches Kennwort, bitte versuchen Sie es noch einmal!</translation>
    </message>
    <message>
        <source>The password you entered in the two entry boxes do not match. Please enter identical passwords in both entry boxes.</source>
        <translation>Die Kennwörter in den beiden Eingabefeldern stimmen nicht überein. Bitte geben Sie in beide Felder das gleiche Kennwort ein.</translation>
    </message>
    <message>
        <source>Password must be at least 3 characters long or at most 20 characters long.</source>
        <translation>Das Kennwort muss mindestens 3 und darf höchstens 20 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Password cannot contain spaces!</source>
        <translation>Das Kennwort darf keine Leerzeichen enthalten!</translation>
    </message>
    <message>
        <source>Password contains characters that cannot be stored! Please use other ones.</source>
        <translation>Das Kennwort enthält Zeichen, die nicht gespeichert werden können! Bitte verwenden Sie andere.</translation>
    </message>
    <message>
        <source>Enter your new password twice.</source>
        <translation>Geben Sie Ihr neues Kennwort zweimal ein.</translation>
    </message>
    <message>
        <source>You will first enter your current password and then your new password.</source>
        <translation>Sie geben zuerst Ihr bisheriges und dann Ihr neues Kennwort ein.</translation>
    </message>
</context>
<context>
    <name>frmCustomer</name>
    <message>
        <source>Edit this customer, or give the edit up (Ctrl+E begins)</source>
        <translation>Diesen Kunden bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Press Apply button to save this customer and to access Product/Services and Issues tabs</source>
        <translation>Klicken Sie auf „Übernehmen“, um diesen Kunden zu speichern und die Register „Produkte/Leistungen“ und „Vorgänge“ zu öffnen</translation>
    </message>
    <message>
        <source>Primary &amp;Contact</source>
        <translation>&amp;Hauptkontakt</translation>
    </message>
    <message>
        <source>Customer Number:</source>
        <translation>Kundennummer:</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Salutation</source>
        <translation>Anrede</translation>
    </message>
    <message>
        <source>Mr.</source>
        <translation>Herr</translation>
    </message>
    <message>
        <source>Miss.</source>
        <translation>Fräulein</translation>
    </message>
    <message>
        <source>Ms.</source>
        <translation>Frau</translation>
    </message>
    <message>
        <source>Mrs.</source>
        <translation>Frau</translation>
    </message>
    <message>
        <source>Dr.</source>
        <translation>Dr.</translation>
    </message>
    <message>
        <source>Rev.</source>
        <translation>Pfr.</translation>
    </message>
    <message>
        <source>Prof.</source>
        <translation>Prof.</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation>Liste ändern</translation>
    </message>
    <message>
        <source>Modify list of customer categories</source>
        <translation>Liste der Kundenkategorien ändern</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Address (line 1):</source>
        <translation>Adresse (Zeile 1):</translation>
    </message>
    <message>
        <source>Address (line 2):</source>
        <translation>Adresse (Zeile 2):</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Modify list of states</source>
        <translation>Liste der Bundesländer ändern</translation>
    </message>
    <message>
        <source>Postal Code:</source>
        <translation>Postleitzahl:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Modify list of countries</source>
        <translation>Liste der Länder ändern</translation>
    </message>
    <message>
        <source>Work Phone:</source>
        <translation>Tel. geschäftlich:</translation>
    </message>
    <message>
        <source>Home Phone:</source>
        <translation>Tel. privat:</translation>
    </message>
    <message>
        <source>Mobile Phone:</source>
        <translation>Mobiltelefon:</translation>
    </message>
    <message>
        <source>Fax Phone:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Default Email:</source>
        <translation>Standard-E-Mail:</translation>
    </message>
    <message>
        <source>Write a message to this address</source>
        <translation>Eine Nachricht an diese Adresse schreiben</translation>
    </message>
    <message>
        <source>Write to the default email address</source>
        <translation>An die Standard-E-Mail-Adresse schreiben</translation>
    </message>
    <message>
        <source>Alternate Email:</source>
        <translation>Weitere E-Mail:</translation>
    </message>
    <message>
        <source>Write to the alternate email address</source>
        <translation>An die weitere E-Mail-Adresse schreiben</translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation>Eigenes Feld 1:</translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation>Liste der Einträge für das erste eigene Feld ändern</translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation>Eigenes Feld 2:</translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation>Liste der Einträge für das zweite eigene Feld ändern</translation>
    </message>
    <message>
        <source>Additional contacts for this customer can be entered under the &apos;Notes&apos; tab.</source>
        <translation>Weitere Ansprechpartner dieses Kunden können im Register „Notizen“ eingegeben werden.</translation>
    </message>
    <message>
        <source>&amp;Notes &amp;&amp; Additional Contacts</source>
        <translation>Noti&amp;zen &amp;&amp; weitere Ansprechpartner</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation>Datu&amp;ms-/Zeitstempel</translation>
    </message>
    <message>
        <source>Additional C&amp;ontacts:</source>
        <translation>&amp;Weitere Ansprechpartner:</translation>
    </message>
    <message>
        <source>Additional Contacts</source>
        <translation>Weitere Ansprechpartner</translation>
    </message>
    <message>
        <source>Products/&amp;Services</source>
        <translation>&amp;Produkte/Leistungen</translation>
    </message>
    <message>
        <source>The customer&apos;s products and services</source>
        <translation>Die Produkte und Leistungen des Kunden</translation>
    </message>
    <message>
        <source>0 products/services</source>
        <translation>0 Produkte/Leistungen</translation>
    </message>
    <message>
        <source>Add a product or service to this customer</source>
        <translation>Diesem Kunden ein Produkt oder eine Leistung hinzufügen</translation>
    </message>
    <message>
        <source>Open the selected product or service (Enter)</source>
        <translation>Das ausgewählte Produkt oder die Leistung öffnen (Eingabe)</translation>
    </message>
    <message>
        <source>Pr&amp;operties...</source>
        <translation>Ei&amp;genschaften...</translation>
    </message>
    <message>
        <source>Print this list (Ctrl+P)</source>
        <translation>Diese Liste drucken (Strg+P)</translation>
    </message>
    <message>
        <source>Print List...</source>
        <translation>Liste drucken...</translation>
    </message>
    <message>
        <source>&amp;Issues</source>
        <translation>V&amp;orgänge</translation>
    </message>
    <message>
        <source>The customer&apos;s issues</source>
        <translation>Die Vorgänge des Kunden</translation>
    </message>
    <message>
        <source>0 issues</source>
        <translation>0 Vorgänge</translation>
    </message>
    <message>
        <source>Log an issue of this customer</source>
        <translation>Einen Vorgang dieses Kunden erfassen</translation>
    </message>
    <message>
        <source>Open the selected issue (Enter)</source>
        <translation>Den ausgewählten Vorgang öffnen (Eingabe)</translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation>&amp;Letzte Bearbeitung</translation>
    </message>
    <message>
        <source>Mailing label text</source>
        <translation>Text des Adressetiketts</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>E&amp;tikett</translation>
    </message>
    <message>
        <source>Email customer information</source>
        <translation>Kundendaten per E-Mail senden</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>E-Ma&amp;il</translation>
    </message>
    <message>
        <source>Print  Preview customer information</source>
        <translation>Kundendaten drucken oder in der Vorschau ansehen</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Read the customer again</source>
        <translation>Den Kunden neu lesen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>Delete this customer</source>
        <translation>Diesen Kunden löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Lös&amp;chen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>Customer: </source>
        <translation>Kunde: </translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Kundenname</translation>
    </message>
    <message>
        <source>New </source>
        <translation>Neu </translation>
    </message>
    <message>
        <source>Customer&apos;s last name or company name must be specified!</source>
        <translation>Der Nachname oder die Firma des Kunden muss angegeben werden!</translation>
    </message>
    <message>
        <source>Default email address entered is not a valid email address!</source>
        <translation>Die eingegebene Standard-E-Mail-Adresse ist keine gültige E-Mail-Adresse!</translation>
    </message>
    <message>
        <source>Alternate email address entered is not a valid email address!</source>
        <translation>Die eingegebene weitere E-Mail-Adresse ist keine gültige E-Mail-Adresse!</translation>
    </message>
    <message>
        <source>The additional contacts hold more text than can be stored. Please shorten them.</source>
        <translation>Die weiteren Ansprechpartner enthalten mehr Text, als gespeichert werden kann. Bitte kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>There are %1 other customer(s) with the same %2 &apos;%3&apos; in your database. Choose View | Lookup Customer to find the customers with the same %2. 

Do you want to add this customer with the duplicate %2 anyways?</source>
        <translation>In Ihrer Datenbank gibt es %1 weitere(n) Kunden mit dem gleichen Wert in %2: „%3“. Wählen Sie Ansicht | Kunden nachschlagen, um die Kunden mit dem gleichen Wert in %2 zu finden. 

Möchten Sie den Kunden mit dem doppelten Wert in %2 trotzdem hinzufügen?</translation>
    </message>
    <message>
        <source>ID: %1</source>
        <translation>ID: %1</translation>
    </message>
    <message>
        <source>  - &apos;%1&apos; has Product/Services associated (Cancel Edit &amp; see Product/Services tab).
</source>
        <translation>  - „%1“ hat Produkte/Leistungen (Bearbeiten abbrechen &amp; siehe Register Produkte/Leistungen).
</translation>
    </message>
    <message>
        <source>  - &apos;%1&apos; has Issues associated (Cancel Edit &amp; see Issues tab).
</source>
        <translation>  - „%1“ hat Vorgänge (Bearbeiten abbrechen &amp; siehe Register Vorgänge).
</translation>
    </message>
    <message>
        <source>Unable to delete customer because:
</source>
        <translation>Der Kunde kann nicht gelöscht werden, weil:
</translation>
    </message>
    <message>
        <source>Mailing label text for %1</source>
        <translation>Text des Adressetiketts für %1</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NEIN</translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>Active?</source>
        <translation>Aktiv?</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>Submit Date</source>
        <translation>Eingangsdatum</translation>
    </message>
    <message>
        <source>Date Sort</source>
        <translation>Datum (Sortierung)</translation>
    </message>
    <message>
        <source>This customer has no product or service yet. Press New to add one.</source>
        <translation>Dieser Kunde hat noch kein Produkt und keine Leistung. Wählen Sie „Neu“, um etwas hinzuzufügen.</translation>
    </message>
    <message>
        <source>This customer has no issue yet. Press New to log one.</source>
        <translation>Dieser Kunde hat noch keinen Vorgang. Wählen Sie „Neu“, um einen zu erfassen.</translation>
    </message>
    <message>
        <source>%1 products/services</source>
        <translation>%1 Produkte/Leistungen</translation>
    </message>
    <message>
        <source>%1 issues</source>
        <translation>%1 Vorgänge</translation>
    </message>
    <message>
        <source>No Product/Service is currently selected. Please make a selection first.</source>
        <translation>Es ist kein Produkt und keine Leistung ausgewählt. Bitte treffen Sie zuerst eine Auswahl.</translation>
    </message>
    <message>
        <source>No Issue is currently selected. Please make a selection first.</source>
        <translation>Es ist kein Vorgang ausgewählt. Bitte treffen Sie zuerst eine Auswahl.</translation>
    </message>
    <message>
        <source>Product/Services List for %1</source>
        <translation>Liste der Produkte/Leistungen von %1</translation>
    </message>
    <message>
        <source>Issue List for %1</source>
        <translation>Liste der Vorgänge von %1</translation>
    </message>
    <message>
        <source>CUSTOMER INFORMATION (%1)

</source>
        <translation>KUNDENDATEN (%1)

</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Additional Contacts:</source>
        <translation>Weitere Ansprechpartner:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Neu...</translation>
    </message>
</context>
<context>
    <name>frmCustomerList</name>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Customers found</source>
        <translation>Gefundene Kunden</translation>
    </message>
    <message>
        <source>0 Customer(s)</source>
        <translation>0 Kunde(n)</translation>
    </message>
    <message>
        <source>Open the selected customer</source>
        <translation>Den ausgewählten Kunden öffnen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Search again (F5)</source>
        <translation>Erneut suchen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation>Die Liste drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source> Customer(s)</source>
        <translation> Kunde(n)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>The customers could not be read.</source>
        <translation>Die Kunden konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation>Die Suche wurde abgebrochen.</translation>
    </message>
    <message>
        <source>There are no customers in this database yet.</source>
        <translation>In dieser Datenbank gibt es noch keine Kunden.</translation>
    </message>
    <message>
        <source>No customer matches this search.</source>
        <translation>Kein Kunde entspricht dieser Suche.</translation>
    </message>
    <message>
        <source>Searching Customers. Please wait...</source>
        <translation>Kunden werden gesucht. Bitte warten...</translation>
    </message>
    <message>
        <source>Customers (</source>
        <translation>Kunden (</translation>
    </message>
    <message>
        <source>Listing Customers. Please wait...</source>
        <translation>Kunden werden aufgelistet. Bitte warten...</translation>
    </message>
    <message>
        <source>Customers (Address contains &apos;</source>
        <translation>Kunden (Adresse enthält &apos;</translation>
    </message>
    <message>
        <source>All Customers</source>
        <translation>Alle Kunden</translation>
    </message>
</context>
<context>
    <name>frmDBMaint</name>
    <message>
        <source>Database Maintenance</source>
        <translation>Datenbankwartung</translation>
    </message>
    <message>
        <source>Data &amp;files:</source>
        <translation>Daten&amp;dateien:</translation>
    </message>
    <message>
        <source>Data files</source>
        <translation>Datendateien</translation>
    </message>
    <message>
        <source>&amp;Re-Index...</source>
        <translation>Neu &amp;indizieren...</translation>
    </message>
    <message>
        <source>Build the index of the selected file anew from its rows</source>
        <translation>Den Index der ausgewählten Datei aus ihren Sätzen neu aufbauen</translation>
    </message>
    <message>
        <source>Chec&amp;k...</source>
        <translation>&amp;Prüfen...</translation>
    </message>
    <message>
        <source>Look whether the selected file and its index are sound; changes nothing</source>
        <translation>Nachsehen, ob die ausgewählte Datei und ihr Index in Ordnung sind; ändert nichts</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>This page of the manual (F1)</source>
        <translation>Diese Seite des Handbuchs (F1)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>WARNING: </source>
        <translation>WARNUNG: </translation>
    </message>
    <message>
        <source>1. Backup your Database Files (See Help menu) before performing any maintenance</source>
        <translation>1. Sichern Sie Ihre Datenbankdateien (siehe Menü Hilfe), bevor Sie eine Wartung ausführen</translation>
    </message>
    <message>
        <source>2. Make sure no one is using the application before performing any maintenance</source>
        <translation>2. Stellen Sie sicher, dass niemand das Programm benutzt, bevor Sie eine Wartung ausführen</translation>
    </message>
    <message>
        <source>No data file selected</source>
        <translation>Keine Datendatei ausgewählt</translation>
    </message>
    <message>
        <source>Select a data file!</source>
        <translation>Wählen Sie eine Datendatei aus!</translation>
    </message>
    <message>
        <source>You are about to Re-Index the following file:</source>
        <translation>Sie sind dabei, die folgende Datei neu zu indizieren:</translation>
    </message>
    <message>
        <source>This operation may take several minutes and requires exclusive access to data files. Do you want to continue?</source>
        <translation>Dieser Vorgang kann einige Minuten dauern und braucht die Datendateien für sich allein. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Re-Index Data File</source>
        <translation>Datendatei neu indizieren</translation>
    </message>
    <message>
        <source>Indexing %1 ... Please wait...</source>
        <translation>%1 wird indiziert ... Bitte warten...</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>Der Grund: %1.</translation>
    </message>
    <message>
        <source>Nothing was changed. Close the database at all other stations and try again.</source>
        <translation>Es wurde nichts geändert. Schließen Sie die Datenbank an allen anderen Arbeitsplätzen und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The index as it was is kept in &apos;%1&apos;.</source>
        <translation>Der bisherige Index liegt weiterhin in &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 has been re-indexed.</source>
        <translation>%1 wurde neu indiziert.</translation>
    </message>
    <message>
        <source>File Indexed</source>
        <translation>Datei indiziert</translation>
    </message>
    <message>
        <source>Unable to index file: %1</source>
        <translation>Datei kann nicht indiziert werden: %1</translation>
    </message>
    <message>
        <source>File Indexing Failed</source>
        <translation>Indizieren fehlgeschlagen</translation>
    </message>
    <message>
        <source>Checking %1 ... Please wait...</source>
        <translation>%1 wird geprüft ... Bitte warten...</translation>
    </message>
    <message>
        <source>%1 and its index are sound. There is nothing to do.</source>
        <translation>%1 und der Index dazu sind in Ordnung. Es ist nichts zu tun.</translation>
    </message>
    <message>
        <source>Check Data File</source>
        <translation>Datendatei prüfen</translation>
    </message>
    <message>
        <source>The check of %1 found this:</source>
        <translation>Die Prüfung von %1 hat Folgendes gefunden:</translation>
    </message>
    <message>
        <source>The button Re-Index rebuilds the index here and now, if nobody else has the database open.</source>
        <translation>Die Schaltfläche Neu indizieren baut den Index sofort neu auf, wenn niemand sonst die Datenbank geöffnet hat.</translation>
    </message>
</context>
<context>
    <name>frmDataImport</name>
    <message>
        <source>Import Data Wizard</source>
        <translation>Datenimport-Assistent</translation>
    </message>
    <message>
        <source>Data to import</source>
        <translation>Zu importierende Daten</translation>
    </message>
    <message>
        <source>If you would like to continue to import data press &quot;Next &gt;&gt;&quot; button or press &quot;Cancel&quot; to quit...</source>
        <translation>Wenn Sie mit dem Import fortfahren möchten, klicken Sie auf „Weiter &gt;&gt;“; mit „Abbrechen“ beenden Sie den Assistenten...</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Datendatei</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Die Datei wählen</translation>
    </message>
    <message>
        <source>Rows of the file</source>
        <translation>Zeilen der Datei</translation>
    </message>
    <message>
        <source>Press &quot;Import Now&quot; to import data or press cancel to quit...</source>
        <translation>Klicken Sie auf „Jetzt importieren“, um die Daten zu importieren, oder auf „Abbrechen“, um zu beenden...</translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Previous</source>
        <translation>&lt;&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;&gt;</source>
        <translation>&amp;Weiter &gt;&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This wizard will guide you through importing data into %1. Please select the data you would like to import from the following list:</source>
        <translation>Dieser Assistent führt Sie durch den Import von Daten in %1. Bitte wählen Sie aus der folgenden Liste, welche Daten Sie importieren möchten:</translation>
    </message>
    <message>
        <source>Format Help</source>
        <translation>Hilfe zum Format</translation>
    </message>
    <message>
        <source>What a file for this row looks like (Space)</source>
        <translation>Wie eine Datei für diese Zeile aussieht (Leertaste)</translation>
    </message>
    <message>
        <source>Import &amp;Now</source>
        <translation>&amp;Jetzt importieren</translation>
    </message>
    <message>
        <source>Please enter or browse to the file that contains data for &apos;%1&apos; :</source>
        <translation>Bitte geben Sie die Datei mit den Daten für „%1“ ein oder wählen Sie sie aus :</translation>
    </message>
    <message>
        <source>You are about to import &apos;%1&apos; from file: &apos;%2&apos;</source>
        <translation>Sie importieren gleich „%1“ aus der Datei: „%2“</translation>
    </message>
    <message>
        <source>Open Data Import File</source>
        <translation>Importdatei öffnen</translation>
    </message>
    <message>
        <source>MS Excel Comma Delimited File (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation>CSV-Datei von MS Excel (*.csv)|*.csv|Textdateien (*.txt)|*.txt|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Please enter the name of the data file to import.</source>
        <translation>Bitte geben Sie den Namen der zu importierenden Datendatei ein.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not exist!</source>
        <translation>„%1“ ist nicht vorhanden!</translation>
    </message>
    <message>
        <source>The check did not reach the end of the file.</source>
        <translation>Die Prüfung hat das Ende der Datei nicht erreicht.</translation>
    </message>
    <message>
        <source>IMPORT FAILED FROM FILE %1!</source>
        <translation>DER IMPORT AUS DER DATEI %1 IST FEHLGESCHLAGEN!</translation>
    </message>
    <message>
        <source>The data file you are about to import contains %1 rows of data and may take a long time to import. We suggest importing this file when you will NOT be using your computer for a FEW HOURS (such as overnight). Do you still wish to continue now?</source>
        <translation>Die Datendatei, die Sie importieren möchten, enthält %1 Zeilen; der Import kann lange dauern. Wir empfehlen, diese Datei dann zu importieren, wenn Sie Ihren Computer EINIGE STUNDEN lang NICHT brauchen (zum Beispiel über Nacht). Möchten Sie trotzdem jetzt fortfahren?</translation>
    </message>
    <message>
        <source>Unable to import data!</source>
        <translation>Die Daten können nicht importiert werden!</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>Imported %1 Records!</source>
        <translation>%1 Datensätze importiert!</translation>
    </message>
    <message>
        <source>%1 rows tried, %2 stored, %3 skipped</source>
        <translation>%1 Zeilen versucht, %2 gespeichert, %3 übersprungen</translation>
    </message>
    <message>
        <source> because the list has them already</source>
        <translation>, weil die Liste sie schon enthält</translation>
    </message>
    <message>
        <source>%1 rows could not be stored.</source>
        <translation>%1 Zeilen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The file has changed since it was checked.</source>
        <translation>Die Datei wurde seit der Prüfung geändert.</translation>
    </message>
    <message>
        <source>%1 rows hold letters that cannot be stored; a ? stands for each.</source>
        <translation>%1 Zeilen enthalten Zeichen, die nicht gespeichert werden können; für jedes steht ein ?.</translation>
    </message>
    <message>
        <source>&amp;Larger View...</source>
        <translation>&amp;Größere Ansicht...</translation>
    </message>
    <message>
        <source>The rows in a window as large as the screen</source>
        <translation>Die Zeilen in einem Fenster, so groß wie der Bildschirm</translation>
    </message>
</context>
<context>
    <name>frmEditCategories</name>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Add an item and type its name</source>
        <translation>Einen Eintrag hinzufügen und seinen Namen eingeben</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected item</source>
        <translation>Den ausgewählten Eintrag löschen</translation>
    </message>
    <message>
        <source>Delete &amp;All</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>Delete all items that no record uses</source>
        <translation>Alle Einträge löschen, die kein Datensatz verwendet</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Preview and print the list</source>
        <translation>Vorschau der Liste anzeigen und drucken</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation>Die Liste neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Press F2 or Enter, or double-click an item, to rename it.</source>
        <translation>Drücken Sie F2 oder die Eingabetaste, oder doppelklicken Sie auf einen Eintrag, um ihn umzubenennen.</translation>
    </message>
    <message>
        <source>This list has no items yet. Press New to add one.</source>
        <translation>Diese Liste hat noch keine Einträge. Wählen Sie „Neu“, um einen hinzuzufügen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is under use and cannot be deleted!</source>
        <translation>„%1“ wird verwendet und kann nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete ALL items in this list?</source>
        <translation>Möchten Sie wirklich ALLE Einträge dieser Liste löschen?</translation>
    </message>
    <message>
        <source>Delete ALL Confirmation</source>
        <translation>Löschen ALLER Einträge bestätigen</translation>
    </message>
    <message>
        <source>Deleting items. Please wait...</source>
        <translation>Einträge werden gelöscht. Bitte warten...</translation>
    </message>
</context>
<context>
    <name>frmEditIssueTemplates</name>
    <message>
        <source>Issue Templates</source>
        <translation>Vorgangsvorlagen</translation>
    </message>
    <message>
        <source>Add a template and type its name</source>
        <translation>Eine Vorlage hinzufügen und ihren Namen eingeben</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Close the list and edit the selected template</source>
        <translation>Die Liste schließen und die ausgewählte Vorlage bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>Preview and print the list</source>
        <translation>Vorschau der Liste anzeigen und drucken</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation>Die Liste neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Close the list</source>
        <translation>Die Liste schließen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Press F2, or click the selected template once more, to rename it.</source>
        <translation>Drücken Sie F2, oder klicken Sie noch einmal auf die ausgewählte Vorlage, um sie umzubenennen.</translation>
    </message>
    <message>
        <source>Enable Templates  - Prompt user to select an issue template when creating a new issue</source>
        <translation>Vorlagen aktivieren  - Beim Anlegen eines neuen Vorgangs nach einer Vorlage fragen</translation>
    </message>
    <message>
        <source>There are no issue templates yet. Press New to add one.</source>
        <translation>Es gibt noch keine Vorgangsvorlagen. Wählen Sie „Neu“, um eine hinzuzufügen.</translation>
    </message>
    <message>
        <source>Edit Issue Templates</source>
        <translation>Vorgangsvorlagen bearbeiten</translation>
    </message>
</context>
<context>
    <name>frmFind</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Fi&amp;nd what:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>Match &amp;whole word only</source>
        <translation>&amp;Nur ganzes Wort</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>A&amp;ufwärts</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Abwärts</translation>
    </message>
    <message>
        <source>&amp;Find Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No occurences of &apos;%1&apos; found!</source>
        <translation>Kein Vorkommen von „%1“ gefunden!</translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the end of this text?</source>
        <translation>Keine weiteren Vorkommen von „%1“ gefunden! Möchten Sie am Ende dieses Textes weitersuchen?</translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the top of this text?</source>
        <translation>Keine weiteren Vorkommen von „%1“ gefunden! Möchten Sie am Anfang dieses Textes weitersuchen?</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Suchen in %1</translation>
    </message>
</context>
<context>
    <name>frmImportPreview</name>
    <message>
        <source>Import Data Preview</source>
        <translation>Vorschau der Importdaten</translation>
    </message>
    <message>
        <source>You are about to import the following data. Press Continue to proceed or press Cancel to quit...</source>
        <translation>Die folgenden Daten werden importiert. Mit „Weiter“ fahren Sie fort, mit „Abbrechen“ beenden Sie den Vorgang...</translation>
    </message>
    <message>
        <source>Rows of the file</source>
        <translation>Zeilen der Datei</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmIssue</name>
    <message>
        <source>Edit this issue, or give the edit up (Ctrl+E begins)</source>
        <translation>Diesen Vorgang bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Press Apply button to save this issue and to access Actions and Attachments tabs</source>
        <translation>Klicken Sie auf „Übernehmen“, um diesen Vorgang zu speichern und die Register „Aktionen“ und „Anlagen“ zu öffnen</translation>
    </message>
    <message>
        <source>&amp;Issue</source>
        <translation>V&amp;organg</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>A&amp;ktionen</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Besc&amp;hreibung</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation>Datums-/&amp;Zeitstempel</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>&amp;Lösung</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Lösung:</translation>
    </message>
    <message>
        <source>Attac&amp;hments</source>
        <translation>Anla&amp;gen</translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation>Le&amp;tzte Bearbeitung</translation>
    </message>
    <message>
        <source>Email issue details</source>
        <translation>Vorgangsdaten per E-Mail senden</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>Print  Preview issue details</source>
        <translation>Vorgangsdaten drucken oder in der Vorschau ansehen</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Read the issue again (F5)</source>
        <translation>Den Vorgang neu lesen (F5)</translation>
    </message>
    <message>
        <source>Delete this issue</source>
        <translation>Diesen Vorgang löschen</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Lös&amp;chen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>Issue: </source>
        <translation>Vorgang: </translation>
    </message>
    <message>
        <source>Issue</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>  - PRODUCT/SERVICE must be selected.</source>
        <translation>  - PRODUKT/LEISTUNG muss ausgewählt werden.</translation>
    </message>
    <message>
        <source>  - SHORT DESCRIPTION must be entered.</source>
        <translation>  - KURZBESCHREIBUNG muss eingegeben werden.</translation>
    </message>
    <message>
        <source>  - SUBMIT DATE is not a valid date.</source>
        <translation>  - EINGANGSDATUM ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - RESPONSE DATE is not a valid date.</source>
        <translation>  - ANTWORTDATUM ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - RESOLUTION DATE is not a valid date.</source>
        <translation>  - LÖSUNGSDATUM ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>Issue ID: %1</source>
        <translation>Vorgangs-ID: %1</translation>
    </message>
    <message>
        <source>ISSUE DETAILS (%1)

</source>
        <translation>VORGANGSDATEN (%1)

</translation>
    </message>
    <message>
        <source>Customer Name:</source>
        <translation>Kundenname:</translation>
    </message>
    <message>
        <source>Submit Date:</source>
        <translation>Eingangsdatum:</translation>
    </message>
    <message>
        <source>Response Date:</source>
        <translation>Antwortdatum:</translation>
    </message>
    <message>
        <source>Resolution Date:</source>
        <translation>Lösungsdatum:</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>frmIssueAction</name>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Aktion</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Pick a date from the calendar</source>
        <translation>Ein Datum aus dem Kalender wählen</translation>
    </message>
    <message>
        <source>Calendar for the date</source>
        <translation>Kalender für das Datum</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Aktion:</translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation>Liste ändern</translation>
    </message>
    <message>
        <source>Modify list of issue actions</source>
        <translation>Liste der Vorgangsaktionen ändern</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>In the unit that your office counts in, such as hours</source>
        <translation>In der Einheit, in der Ihr Büro rechnet, zum Beispiel Stunden</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation>&amp;Datums-/Zeitstempel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add Issue Action</source>
        <translation>Vorgangsaktion hinzufügen</translation>
    </message>
    <message>
        <source>Edit Issue Action</source>
        <translation>Vorgangsaktion bearbeiten</translation>
    </message>
    <message>
        <source>View Issue Action</source>
        <translation>Vorgangsaktion ansehen</translation>
    </message>
    <message>
        <source>Delete Issue Action</source>
        <translation>Vorgangsaktion löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>LÖSCHEN</translation>
    </message>
    <message>
        <source>The Issue record to which this Action record belongs to no longer exists or is inaccessible.</source>
        <translation>Der Vorgang, zu dem diese Aktion gehört, ist nicht mehr vorhanden oder nicht erreichbar.</translation>
    </message>
    <message>
        <source>  - DATE entered is not a valid date.</source>
        <translation>  - Das eingegebene DATUM ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - DATE must be entered.</source>
        <translation>  - DATUM muss eingegeben werden.</translation>
    </message>
    <message>
        <source>  - ACTION must be selected.</source>
        <translation>  - AKTION muss ausgewählt werden.</translation>
    </message>
    <message>
        <source>  - DURATION must be numeric.</source>
        <translation>  - DAUER muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation>Bitte berichtigen Sie die folgenden Eingabefelder:</translation>
    </message>
    <message>
        <source>Record cannot be accessed or no longer exists. It may have been deleted by another user.</source>
        <translation>Der Datensatz ist nicht erreichbar oder nicht mehr vorhanden. Möglicherweise hat ihn ein anderer Benutzer gelöscht.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Issue Action?</source>
        <translation>Möchten Sie diese Vorgangsaktion wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>frmIssueList</name>
    <message>
        <source>Issues</source>
        <translation>Vorgänge</translation>
    </message>
    <message>
        <source>Click a column header to sort results by that column&apos;s data</source>
        <translation>Klicken Sie auf eine Spaltenüberschrift, um nach den Daten dieser Spalte zu sortieren</translation>
    </message>
    <message>
        <source>Issues found</source>
        <translation>Gefundene Vorgänge</translation>
    </message>
    <message>
        <source>0 Issue(s)</source>
        <translation>0 Vorgänge</translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation>Den ausgewählten Vorgang öffnen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Search again (F5)</source>
        <translation>Erneut suchen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation>Die Liste drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source> Issue(s)</source>
        <translation> Vorgänge</translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation>Die Vorgänge konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Searching Issues. Please wait...</source>
        <translation>Vorgänge werden gesucht. Bitte warten...</translation>
    </message>
    <message>
        <source>Issues (Search =&apos;</source>
        <translation>Vorgänge (Suche =&apos;</translation>
    </message>
    <message>
        <source>No issue matches this search.</source>
        <translation>Kein Vorgang entspricht dieser Suche.</translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation>Die Suche wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The description or resolution of %1 issue(s) is damaged and could not be searched. These issues are missing from the list, unless they were found by another text.

Please make a copy of the whole data folder, and restore the damaged file from your latest backup.</source>
        <translation>Die Beschreibung oder Lösung von %1 Vorgang/Vorgängen ist beschädigt und konnte nicht durchsucht werden. Diese Vorgänge fehlen in der Liste, sofern sie nicht durch einen anderen Text gefunden wurden.

Bitte machen Sie eine Kopie des gesamten Datenordners, und stellen Sie die beschädigte Datei aus Ihrer letzten Datensicherung wieder her.</translation>
    </message>
</context>
<context>
    <name>frmIssueTemplate</name>
    <message>
        <source>Edit this issue template, or give the edit up (Ctrl+E begins)</source>
        <translation>Diese Vorgangsvorlage bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Issue</source>
        <translation>V&amp;organg</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Be&amp;schreibung</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation>&amp;Datums-/Zeitstempel</translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation>&amp;Lösung</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Lösung:</translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation>Le&amp;tzte Bearbeitung</translation>
    </message>
    <message>
        <source>Email issue template details</source>
        <translation>Daten der Vorgangsvorlage per E-Mail senden</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>Print  Preview issue template details</source>
        <translation>Daten der Vorgangsvorlage drucken oder in der Vorschau ansehen</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Read the issue template again (F5)</source>
        <translation>Die Vorgangsvorlage neu lesen (F5)</translation>
    </message>
    <message>
        <source>Delete this issue template</source>
        <translation>Diese Vorgangsvorlage löschen</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Lös&amp;chen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>Üb&amp;ernehmen</translation>
    </message>
    <message>
        <source>Issue Template: </source>
        <translation>Vorgangsvorlage: </translation>
    </message>
    <message>
        <source>Issue Template</source>
        <translation>Vorgangsvorlage</translation>
    </message>
    <message>
        <source>ISSUE TEMPLATE: %1

</source>
        <translation>VORGANGSVORLAGE: %1

</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>&amp;Database Location:</source>
        <translation>&amp;Ort der Datenbank:</translation>
    </message>
    <message>
        <source>&amp;Login Name:</source>
        <translation>&amp;Anmeldename:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Unless changed, BOTH the initial Login Name and Password for a new database is SYSOP</source>
        <translation>Sofern nicht geändert, lauten SOWOHL der Anmeldename als auch das Kennwort einer neuen Datenbank SYSOP</translation>
    </message>
    <message>
        <source>Login Name must be entered!</source>
        <translation>Der Anmeldename muss eingegeben werden!</translation>
    </message>
    <message>
        <source>Password must be entered!</source>
        <translation>Das Kennwort muss eingegeben werden!</translation>
    </message>
    <message>
        <source>Invalid Login Name or Password! Please try again.

If you believe you are getting this message in error, please ask your administrator to check whether your Login Name exists in the system. Your administrator can:
  - Add a Login Name for you
  - Activate a Login Name if it is not ACTIVE
  - Reset your Password to your Login Name (if you have forgotten your password)

Please note BOTH the Login Name and Password for a new database is SYSOP</source>
        <translation>Anmeldename oder Kennwort ungültig! Bitte versuchen Sie es noch einmal.

Wenn Sie meinen, dass diese Meldung nicht stimmt, lassen Sie Ihren Administrator prüfen, ob es Ihren Anmeldenamen im System gibt. Ihr Administrator kann:
  - einen Anmeldenamen für Sie anlegen
  - einen Anmeldenamen aktivieren, der nicht AKTIV ist
  - Ihr Kennwort auf Ihren Anmeldenamen zurücksetzen (wenn Sie das Kennwort vergessen haben)

Bitte beachten Sie: SOWOHL der Anmeldename als auch das Kennwort einer neuen Datenbank lauten SYSOP</translation>
    </message>
</context>
<context>
    <name>frmLookupCustomer</name>
    <message>
        <source>Lookup Customer</source>
        <translation>Kunden nachschlagen</translation>
    </message>
    <message>
        <source>Search &amp;By:</source>
        <translation>Suchen &amp;nach:</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Art der Suche</translation>
    </message>
    <message>
        <source>&amp;Search String:</source>
        <translation>&amp;Suchtext:</translation>
    </message>
    <message>
        <source>TIP: Leave blank to display all customers</source>
        <translation>TIPP: Leer lassen, um alle Kunden anzuzeigen</translation>
    </message>
    <message>
        <source> starts with or is:</source>
        <translation> beginnt mit oder ist:</translation>
    </message>
    <message>
        <source>Primary Contact&apos;s </source>
        <translation>Hauptkontakt, </translation>
    </message>
    <message>
        <source>Phone/Address/City/Zip contains:</source>
        <translation>Telefon/Adresse/Ort/PLZ enthält:</translation>
    </message>
    <message>
        <source>Customer ID is:</source>
        <translation>Kunden-ID ist:</translation>
    </message>
    <message>
        <source>Customer ID must be numeric!</source>
        <translation>Die Kunden-ID muss eine Zahl sein!</translation>
    </message>
    <message>
        <source>&apos;Search String:&apos; must be entered. Request &apos;Edit Report&apos; permission from your administrator to enable query without search string.</source>
        <translation>„Suchtext:“ muss eingegeben werden. Bitten Sie Ihren Administrator um das Recht „Berichte bearbeiten“, um ohne Suchtext suchen zu können.</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>No database is open.
File, Open Database... opens one you have; File, New Database... creates one.</source>
        <translation>Es ist keine Datenbank geöffnet.
Datei, Datenbank öffnen... öffnet eine vorhandene; Datei, Neue Datenbank... legt eine an.</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source> (read-only)</source>
        <translation> (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Database Location: </source>
        <translation>Ort der Datenbank: </translation>
    </message>
    <message>
        <source>User: </source>
        <translation>Benutzer: </translation>
    </message>
    <message>
        <source>Choose File menu to open or create database.</source>
        <translation>Wählen Sie das Menü Datei, um eine Datenbank zu öffnen oder anzulegen.</translation>
    </message>
    <message>
        <source>Machine: </source>
        <translation>Computer: </translation>
    </message>
    <message>
        <source>Multi-User version </source>
        <translation>Mehrbenutzerversion </translation>
    </message>
    <message>
        <source>*CURRENT* Password for &apos;%1&apos;</source>
        <translation>*BISHERIGES* Kennwort für „%1“</translation>
    </message>
    <message>
        <source>*NEW* Password for &apos;%1&apos;</source>
        <translation>*NEUES* Kennwort für „%1“</translation>
    </message>
    <message>
        <source>Your password has been changed!</source>
        <translation>Ihr Kennwort wurde geändert!</translation>
    </message>
    <message>
        <source> Customers</source>
        <translation> Kunden</translation>
    </message>
    <message>
        <source> Issues</source>
        <translation> Vorgänge</translation>
    </message>
    <message>
        <source> Reports</source>
        <translation> Berichte</translation>
    </message>
    <message>
        <source> Lookup List Items</source>
        <translation> Einträge der Auswahllisten</translation>
    </message>
    <message>
        <source> Users</source>
        <translation> Benutzer</translation>
    </message>
    <message>
        <source>Database Statistics</source>
        <translation>Datenbankstatistik</translation>
    </message>
    <message>
        <source>Counting records. Please wait...</source>
        <translation>Datensätze werden gezählt. Bitte warten...</translation>
    </message>
    <message>
        <source>DATABASE STATISTICS [%1]</source>
        <translation>DATENBANKSTATISTIK [%1]</translation>
    </message>
    <message>
        <source>Please note this count may include deleted records as well.</source>
        <translation>Bitte beachten Sie, dass gelöschte Datensätze mitgezählt sein können.</translation>
    </message>
    <message>
        <source>Enter Customer ID</source>
        <translation>Kunden-ID eingeben</translation>
    </message>
    <message>
        <source>Please enter a numeric value for Customer ID!</source>
        <translation>Bitte geben Sie eine Zahl als Kunden-ID ein!</translation>
    </message>
    <message>
        <source>Enter Issue ID</source>
        <translation>Vorgangs-ID eingeben</translation>
    </message>
    <message>
        <source>Please enter a numeric value for Issue ID!</source>
        <translation>Bitte geben Sie eine Zahl als Vorgangs-ID ein!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>To correct this problem, please re-install %1</source>
        <translation>Um das Problem zu beheben, installieren Sie bitte %1 erneut</translation>
    </message>
    <message>
        <source>You are about to create a NEW %1 Database.</source>
        <translation>Sie legen gleich eine NEUE %1-Datenbank an.</translation>
    </message>
    <message>
        <source>SHARED/NETWORK DATABASE: If you would like to share the new database with other users on your Local Area Network, you may want to create this database on a File Server or a Shared Network Directory that is accessible by other users. While you are creating the new database, please note the network directory location of the new database. Other users will need to select this network directory location when they choose File, Open Database... from their machines.</source>
        <translation>GEMEINSAME DATENBANK IM NETZ: Wenn Sie die neue Datenbank mit anderen Benutzern Ihres lokalen Netzes teilen möchten, legen Sie sie am besten auf einem Dateiserver oder in einem freigegebenen Netzwerkverzeichnis an, das die anderen Benutzer erreichen. Bitte merken Sie sich beim Anlegen den Ort dieses Netzwerkverzeichnisses. Die anderen Benutzer müssen ihn auswählen, wenn sie an ihren Computern Datei, Datenbank öffnen... wählen.</translation>
    </message>
    <message>
        <source>LOCAL DATABASE: If you are creating the new database for your exclusive use, you may want to create the database on your local machine.</source>
        <translation>LOKALE DATENBANK: Wenn nur Sie die neue Datenbank benutzen, können Sie sie auf Ihrem eigenen Computer anlegen.</translation>
    </message>
    <message>
        <source>NEW DATABASE: Please select the Directory where you want to store the new %1 database:</source>
        <translation>NEUE DATENBANK: Bitte wählen Sie das Verzeichnis, in dem die neue %1-Datenbank gespeichert werden soll:</translation>
    </message>
    <message>
        <source>NEW DATABASE CREATED! Initial Login and Password is SYSOP (Multi-user version only)
</source>
        <translation>NEUE DATENBANK ANGELEGT! Anmeldename und Kennwort lauten anfangs SYSOP (nur Mehrbenutzerversion)
</translation>
    </message>
    <message>
        <source>New %1 database has been created in:</source>
        <translation>Die neue %1-Datenbank wurde angelegt in:</translation>
    </message>
    <message>
        <source>If you are sharing this data with other users, please note this directory location. Other users will need to specify this location when opening the database.</source>
        <translation>Wenn Sie diese Daten mit anderen Benutzern teilen, merken Sie sich bitte den Ort dieses Verzeichnisses. Die anderen Benutzer müssen ihn beim Öffnen der Datenbank angeben.</translation>
    </message>
    <message>
        <source>Next you will login into the new database (Multi-user version only)...</source>
        <translation>Als Nächstes melden Sie sich bei der neuen Datenbank an (nur Mehrbenutzerversion)...</translation>
    </message>
    <message>
        <source>EXISTING DATABASE: Please select the Directory that contains an existing %1 database:</source>
        <translation>VORHANDENE DATENBANK: Bitte wählen Sie das Verzeichnis, das eine vorhandene %1-Datenbank enthält:</translation>
    </message>
    <message>
        <source>[The data directory will be specified here once you create/open a Norvane Database]</source>
        <translation>[Das Datenverzeichnis steht hier, sobald Sie eine Norvane-Datenbank anlegen oder öffnen]</translation>
    </message>
    <message>
        <source>BACKING UP, COPYING OR MOVING YOUR DATABASE</source>
        <translation>IHRE DATENBANK SICHERN, KOPIEREN ODER VERSCHIEBEN</translation>
    </message>
    <message>
        <source>In order to safe keep your %1 database in case of computer failure or data corruption we suggest that you periodically copy all %1 files AND sub-directories in the following directory:</source>
        <translation>Damit Ihre %1-Datenbank bei einem Computerausfall oder bei beschädigten Daten nicht verloren geht, empfehlen wir, regelmäßig alle %1-Dateien UND Unterverzeichnisse des folgenden Verzeichnisses zu kopieren:</translation>
    </message>
    <message>
        <source>to a removable media such as tape media, floppy disk, zip or jaz disk, CDR, tape or to another computer on your network. THIS IS THE ONLY WAY TO RECOVER YOUR DATA IN CASE YOUR DATABASE GETS CORRUPTED!</source>
        <translation>auf ein Wechselmedium wie Band, Diskette, Zip- oder Jaz-Laufwerk, CD-R oder auf einen anderen Computer Ihres Netzes. NUR SO KÖNNEN SIE IHRE DATEN WIEDERHERSTELLEN, WENN IHRE DATENBANK BESCHÄDIGT WIRD!</translation>
    </message>
    <message>
        <source>ALL %1 database files in the directory above must be BACKed up together and if needed, RESTOREd together.</source>
        <translation>ALLE %1-Datenbankdateien im obigen Verzeichnis müssen gemeinsam GESICHERT und bei Bedarf gemeinsam WIEDERHERGESTELLT werden.</translation>
    </message>
    <message>
        <source>We suggest use of UPS (Uninterruptible Power Supply) for machines that access or host the database. Never reboot your machine while you are editing %1 data. Please consult your Network or System Administrator for advice on how to protect your %1 data.</source>
        <translation>Wir empfehlen eine USV (unterbrechungsfreie Stromversorgung) für Computer, die auf die Datenbank zugreifen oder sie beherbergen. Starten Sie Ihren Computer nie neu, während Sie %1-Daten bearbeiten. Bitte fragen Sie Ihren Netzwerk- oder Systemadministrator, wie Sie Ihre %1-Daten schützen.</translation>
    </message>
    <message>
        <source>We suggest backing up data at the end of each day so the most you will loose in case of system failure is one day&apos;s work. Please consult YOUR Network Administrator to come up with a backup and disaster recovery scheme that suits your needs.</source>
        <translation>Wir empfehlen, die Daten am Ende jedes Tages zu sichern, damit Sie bei einem Systemausfall höchstens die Arbeit eines Tages verlieren. Bitte erarbeiten Sie mit IHREM Netzwerkadministrator ein passendes Verfahren zur Sicherung und Wiederherstellung.</translation>
    </message>
    <message>
        <source>Look up a customer</source>
        <translation>Einen Kunden nachschlagen</translation>
    </message>
    <message>
        <source>Enter a new customer</source>
        <translation>Einen neuen Kunden eingeben</translation>
    </message>
    <message>
        <source>Tip of the day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>Product Overview</source>
        <translation>Produktübersicht</translation>
    </message>
    <message>
        <source>A tour in pictures</source>
        <translation>Ein Rundgang in Bildern</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Specifications Sheet (pdf)</source>
        <translation>Technische Daten (PDF)</translation>
    </message>
    <message>
        <source>How to backup your data?</source>
        <translation>Wie sichern Sie Ihre Daten?</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Unterstützung</translation>
    </message>
    <message>
        <source>Support for %1 can be obtained online at</source>
        <translation>Unterstützung für %1 erhalten Sie im Internet unter</translation>
    </message>
    <message>
        <source>Would you like to go to this website?</source>
        <translation>Möchten Sie diese Website besuchen?</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Database...</source>
        <translation>&amp;Neue Datenbank...</translation>
    </message>
    <message>
        <source>&amp;Open Database...</source>
        <translation>&amp;Datenbank öffnen...</translation>
    </message>
    <message>
        <source>Close Database</source>
        <translation>Datenbank schließen</translation>
    </message>
    <message>
        <source>Display Data Folder</source>
        <translation>Datenordner anzeigen</translation>
    </message>
    <message>
        <source>&amp;Change Password...</source>
        <translation>&amp;Kennwort ändern...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Lookup Customer...</source>
        <translation>&amp;Kunden nachschlagen...</translation>
    </message>
    <message>
        <source>&amp;New Customer</source>
        <translation>&amp;Neuer Kunde</translation>
    </message>
    <message>
        <source>Search &amp;Issues...</source>
        <translation>&amp;Vorgänge suchen...</translation>
    </message>
    <message>
        <source>Lookup by Issue ID...</source>
        <translation>Vorgang nach ID suchen...</translation>
    </message>
    <message>
        <source>&amp;My Issues</source>
        <translation>&amp;Meine Vorgänge</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>Administration</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>List Management</source>
        <translation>Listen verwalten</translation>
    </message>
    <message>
        <source>Customer Categories...</source>
        <translation>Kundenkategorien...</translation>
    </message>
    <message>
        <source>Products &amp;&amp; Services...</source>
        <translation>Produkte &amp;&amp; Leistungen...</translation>
    </message>
    <message>
        <source>Contract Types...</source>
        <translation>Vertragsarten...</translation>
    </message>
    <message>
        <source>Contract Durations...</source>
        <translation>Vertragslaufzeiten...</translation>
    </message>
    <message>
        <source>States/Provinces...</source>
        <translation>Bundesländer/Provinzen...</translation>
    </message>
    <message>
        <source>Countries...</source>
        <translation>Länder...</translation>
    </message>
    <message>
        <source>Issue Statuses...</source>
        <translation>Vorgangsstatus...</translation>
    </message>
    <message>
        <source>Issue Actions...</source>
        <translation>Vorgangsaktionen...</translation>
    </message>
    <message>
        <source>Issue Priorities...</source>
        <translation>Vorgangsprioritäten...</translation>
    </message>
    <message>
        <source>Issue Categories...</source>
        <translation>Vorgangskategorien...</translation>
    </message>
    <message>
        <source>Database Admin</source>
        <translation>Datenbankverwaltung</translation>
    </message>
    <message>
        <source>User Management...</source>
        <translation>Benutzerverwaltung...</translation>
    </message>
    <message>
        <source>Issue Templates...</source>
        <translation>Vorgangsvorlagen...</translation>
    </message>
    <message>
        <source>Import Data Wizard...</source>
        <translation>Datenimport-Assistent...</translation>
    </message>
    <message>
        <source>Customizations...</source>
        <translation>Anpassungen...</translation>
    </message>
    <message>
        <source>Email Options...</source>
        <translation>E-Mail-Optionen...</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Tile &amp;Horizontally</source>
        <translation>&amp;Horizontal anordnen</translation>
    </message>
    <message>
        <source>Tile &amp;Vertically</source>
        <translation>&amp;Vertikal anordnen</translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation>Ü&amp;berlappend</translation>
    </message>
    <message>
        <source>&amp;Arrange Icons</source>
        <translation>&amp;Symbole anordnen</translation>
    </message>
    <message>
        <source>&amp;Close All</source>
        <translation>&amp;Alle schließen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>FAQs</source>
        <translation>Häufige Fragen</translation>
    </message>
    <message>
        <source>&amp;User Manual</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;Tutorial</source>
        <translation>&amp;Einführung</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>New Customer</source>
        <translation>Neuer Kunde</translation>
    </message>
    <message>
        <source>Lookup Customer</source>
        <translation>Kunden nachschlagen</translation>
    </message>
    <message>
        <source>Search Issues</source>
        <translation>Vorgänge suchen</translation>
    </message>
    <message>
        <source>Lookup by Issue ID</source>
        <translation>Vorgang nach ID suchen</translation>
    </message>
    <message>
        <source>My Issues</source>
        <translation>Meine Vorgänge</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Customer Categories</source>
        <translation>Kundenkategorien</translation>
    </message>
    <message>
        <source>Products &amp;&amp; Services</source>
        <translation>Produkte &amp;&amp; Leistungen</translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation>Vertragsarten</translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation>Vertragslaufzeiten</translation>
    </message>
    <message>
        <source>States &amp;&amp; Provinces</source>
        <translation>Bundesländer &amp;&amp; Provinzen</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation>Vorgangsstatus</translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation>Vorgangsaktionen</translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation>Vorgangsprioritäten</translation>
    </message>
    <message>
        <source>Issue Categories</source>
        <translation>Vorgangskategorien</translation>
    </message>
    <message>
        <source>User Management</source>
        <translation>Benutzerverwaltung</translation>
    </message>
    <message>
        <source>Issue Templates</source>
        <translation>Vorgangsvorlagen</translation>
    </message>
    <message>
        <source>Import Data Wizard</source>
        <translation>Datenimport-Assistent</translation>
    </message>
    <message>
        <source>Customizations</source>
        <translation>Anpassungen</translation>
    </message>
    <message>
        <source>Email Options</source>
        <translation>E-Mail-Optionen</translation>
    </message>
    <message>
        <source>&amp;Recent Databases</source>
        <translation>&amp;Zuletzt geöffnete Datenbanken</translation>
    </message>
    <message>
        <source>Purge Old Issues Wizard...</source>
        <translation>Assistent für alte Vorgänge...</translation>
    </message>
    <message>
        <source>Database &amp;Maintenance...</source>
        <translation>Datenbank&amp;wartung...</translation>
    </message>
    <message>
        <source>Add Bulk Issues</source>
        <translation>Vorgänge in Mengen anlegen</translation>
    </message>
    <message>
        <source>Purge Old Issues Wizard</source>
        <translation>Assistent für alte Vorgänge</translation>
    </message>
</context>
<context>
    <name>frmMessage</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Print the message (Ctrl+P)</source>
        <translation>Die Meldung drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>Save the message in a file (Ctrl+S)</source>
        <translation>Die Meldung in einer Datei speichern (Strg+S)</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message>
        <source>Email the message</source>
        <translation>Die Meldung per E-Mail senden</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole message to the clipboard</source>
        <translation>Die ganze Meldung in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>frmMyIssues</name>
    <message>
        <source>My Issues</source>
        <translation>Meine Vorgänge</translation>
    </message>
    <message>
        <source>&amp;Assigned To:</source>
        <translation>&amp;Zugewiesen an:</translation>
    </message>
    <message>
        <source>Assigned to</source>
        <translation>Zugewiesen an</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>S&amp;tatus:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Refresh every 5 minutes</source>
        <translation>Alle 5 Minuten aktualisieren</translation>
    </message>
    <message>
        <source>A&amp;uto Refresh</source>
        <translation>A&amp;utomatisch aktualisieren</translation>
    </message>
    <message>
        <source>Click a column header to sort results by that column&apos;s data</source>
        <translation>Klicken Sie auf eine Spaltenüberschrift, um nach den Daten dieser Spalte zu sortieren</translation>
    </message>
    <message>
        <source>My issues</source>
        <translation>Meine Vorgänge</translation>
    </message>
    <message>
        <source>0 Issue(s)</source>
        <translation>0 Vorgänge</translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation>Den ausgewählten Vorgang öffnen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Read again (F5)</source>
        <translation>Neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation>Die Liste drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source> Issue(s)</source>
        <translation> Vorgänge</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>Date Sorting</source>
        <translation>Datumssortierung</translation>
    </message>
    <message>
        <source>Un-Assigned</source>
        <translation>Nicht zugewiesen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation>Die Vorgänge konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Displaying My Issues. Please wait...</source>
        <translation>Meine Vorgänge werden angezeigt. Bitte warten...</translation>
    </message>
    <message>
        <source>My Issues (Assigned to: </source>
        <translation>Meine Vorgänge (Zugewiesen an: </translation>
    </message>
    <message>
        <source>, Status =&apos;</source>
        <translation>, Status =&apos;</translation>
    </message>
    <message>
        <source>No issue is assigned like this.</source>
        <translation>Kein Vorgang ist so zugewiesen.</translation>
    </message>
    <message>
        <source>The list was cancelled.</source>
        <translation>Die Liste wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Email Options</source>
        <translation>E-Mail-Optionen</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>Messages open as a draft in the program for email files (.eml)</source>
        <translation>Nachrichten öffnen sich als Entwurf im Programm für E-Mail-Dateien (.eml)</translation>
    </message>
    <message>
        <source>Use Microsoft &amp;Outlook</source>
        <translation>Microsoft &amp;Outlook verwenden</translation>
    </message>
    <message>
        <source>Messages open in the mail program of this computer</source>
        <translation>Nachrichten öffnen sich im E-Mail-Programm dieses Computers</translation>
    </message>
    <message>
        <source>Use SIMPLE &amp;MAPI to send email messages. Use this option if you use Microsoft Outlook EXPRESS</source>
        <translation>&amp;E-Mails über SIMPLE MAPI senden. Wählen Sie dies, wenn Sie Microsoft Outlook EXPRESS verwenden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
</context>
<context>
    <name>frmPS</name>
    <message>
        <source>Edit this record, or give the edit up (Ctrl+E begins)</source>
        <translation>Diesen Datensatz bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Press Apply button to save this record and to access Attachments tabs</source>
        <translation>Klicken Sie auf „Übernehmen“, um diesen Datensatz zu speichern und das Register „Anlagen“ zu öffnen</translation>
    </message>
    <message>
        <source>P&amp;roduct/Service</source>
        <translation>&amp;Produkt/Leistung</translation>
    </message>
    <message>
        <source>Customer Name:</source>
        <translation>Kundenname:</translation>
    </message>
    <message>
        <source>Open the customer</source>
        <translation>Den Kunden öffnen</translation>
    </message>
    <message>
        <source>Double-click to open the customer</source>
        <translation>Doppelklicken, um den Kunden zu öffnen</translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation>Produkt/Leistung:</translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation>Liste ändern</translation>
    </message>
    <message>
        <source>Modify list of products and services</source>
        <translation>Liste der Produkte und Leistungen ändern</translation>
    </message>
    <message>
        <source>Short Description:</source>
        <translation>Kurzbeschreibung:</translation>
    </message>
    <message>
        <source>Contract or Part Number:</source>
        <translation>Vertrags-/Teilenummer:</translation>
    </message>
    <message>
        <source>Tracking Number:</source>
        <translation>Verfolgungsnummer:</translation>
    </message>
    <message>
        <source>Contract Type:</source>
        <translation>Vertragsart:</translation>
    </message>
    <message>
        <source>Modify list of contract types</source>
        <translation>Liste der Vertragsarten ändern</translation>
    </message>
    <message>
        <source>Contract Duration:</source>
        <translation>Vertragslaufzeit:</translation>
    </message>
    <message>
        <source>Modify list of contract durations</source>
        <translation>Liste der Vertragslaufzeiten ändern</translation>
    </message>
    <message>
        <source>Date Initiated:</source>
        <translation>Beginn:</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Ein Datum wählen</translation>
    </message>
    <message>
        <source>Pick the date initiated</source>
        <translation>Das Datum des Beginns wählen</translation>
    </message>
    <message>
        <source>Date Terminated:</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <source>Pick the date terminated</source>
        <translation>Das Datum des Endes wählen</translation>
    </message>
    <message>
        <source>Active: YES</source>
        <translation>Aktiv: JA</translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation>Eigenes Feld 1:</translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation>Liste der Einträge für das erste eigene Feld ändern</translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation>Eigenes Feld 2:</translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation>Liste der Einträge für das zweite eigene Feld ändern</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>N&amp;otizen</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation>Datums-/&amp;Zeitstempel</translation>
    </message>
    <message>
        <source>&amp;Attachments</source>
        <translation>Anla&amp;gen</translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation>Le&amp;tzte Bearbeitung</translation>
    </message>
    <message>
        <source>Email product/service details</source>
        <translation>Daten des Produkts oder der Leistung per E-Mail senden</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>Print  Preview product/service details</source>
        <translation>Daten des Produkts oder der Leistung drucken oder in der Vorschau ansehen</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Read the record again</source>
        <translation>Den Datensatz neu lesen</translation>
    </message>
    <message>
        <source>Delete this record and its attachments</source>
        <translation>Diesen Datensatz und seine Anlagen löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>App&amp;ly</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>Product/Service: </source>
        <translation>Produkt/Leistung: </translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>  - PRODUCT/SERVICE must be selected.</source>
        <translation>  - PRODUKT/LEISTUNG muss ausgewählt werden.</translation>
    </message>
    <message>
        <source>  - DATE INITIATED is not a valid date.</source>
        <translation>  - BEGINN ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - DATE TERMINATED is not a valid date.</source>
        <translation>  - ENDE ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - DATE TERMINATED cannot be before DATE INITIATED.</source>
        <translation>  - ENDE darf nicht vor BEGINN liegen.</translation>
    </message>
    <message>
        <source>ID: %1</source>
        <translation>ID: %1</translation>
    </message>
    <message>
        <source>Active: NO</source>
        <translation>Aktiv: NEIN</translation>
    </message>
    <message>
        <source>PRODUCT/SERVICE DETAILS

</source>
        <translation>PRODUKT-/LEISTUNGSDATEN

</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>frmPSFilterDlg</name>
    <message>
        <source>Product/Service Report</source>
        <translation>Bericht über Produkte/Leistungen</translation>
    </message>
    <message>
        <source>&amp;Product/Service:</source>
        <translation>&amp;Produkt/Leistung:</translation>
    </message>
    <message>
        <source>Is &amp;Active?</source>
        <translation>&amp;Ist aktiv?</translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation>Eigenes Feld 1:</translation>
    </message>
    <message>
        <source>custom1</source>
        <translation>Eigenes Feld 1</translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation>Eigenes Feld 2:</translation>
    </message>
    <message>
        <source>custom2</source>
        <translation>Eigenes Feld 2</translation>
    </message>
    <message>
        <source>Tip: Leave all fields blank to view all Products/Services</source>
        <translation>Tipp: Lassen Sie alle Felder leer, um alle Produkte/Leistungen zu sehen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>frmPreferences</name>
    <message>
        <source>Customizations</source>
        <translation>Anpassungen</translation>
    </message>
    <message>
        <source>&amp;Names of:</source>
        <translation>&amp;Namen von:</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Empty all custom names of this window</source>
        <translation>Alle eigenen Namen dieses Fensters leeren</translation>
    </message>
    <message>
        <source>Field names</source>
        <translation>Feldnamen</translation>
    </message>
    <message>
        <source>Leave Custom Display Name (2nd column) blank to use Default Names (first column)</source>
        <translation>Lassen Sie den eigenen Anzeigenamen (2. Spalte) leer, um die Standardnamen (erste Spalte) zu verwenden</translation>
    </message>
    <message>
        <source>Show a customer&apos;s name as</source>
        <translation>Namen eines Kunden anzeigen als</translation>
    </message>
    <message>
        <source> Window</source>
        <translation> Fenster</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation>Produkt/Leistung</translation>
    </message>
    <message>
        <source>Issue</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Internal Name</source>
        <translation>Interner Name</translation>
    </message>
    <message>
        <source>Custom Display Name</source>
        <translation>Eigener Anzeigename</translation>
    </message>
    <message>
        <source> Default Names</source>
        <translation> Standardnamen</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Do you want to save changes for this window?</source>
        <translation>Möchten Sie die Änderungen für dieses Fenster speichern?</translation>
    </message>
</context>
<context>
    <name>frmPreview</name>
    <message>
        <source>Choose a printer and print (Ctrl+P)</source>
        <translation>Einen Drucker wählen und drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file (Ctrl+S)</source>
        <translation>Die Seiten als PDF-Datei speichern (Strg+S)</translation>
    </message>
    <message>
        <source>&amp;Save as PDF...</source>
        <translation>&amp;Als PDF speichern...</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Smaller (Ctrl+-)</source>
        <translation>Kleiner (Strg+-)</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger (Ctrl++)</source>
        <translation>Größer (Strg++)</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>So breit wie das Fenster</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Show a whole page</source>
        <translation>Eine ganze Seite zeigen</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Print Preview - %1</source>
        <translation>Druckvorschau - %1</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>frmProductReportDisplay</name>
    <message>
        <source>Product/Service Report</source>
        <translation>Bericht über Produkte/Leistungen</translation>
    </message>
</context>
<context>
    <name>frmProgress</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmPurgeIssues</name>
    <message>
        <source>Purge (Delete) Old Issues Wizard</source>
        <translation>Assistent zum Löschen alter Vorgänge</translation>
    </message>
    <message>
        <source>How to &amp;backup data?</source>
        <translation>Wie werden Daten ge&amp;sichert?</translation>
    </message>
    <message>
        <source>What to copy, and where it lies</source>
        <translation>Was zu kopieren ist und wo es liegt</translation>
    </message>
    <message>
        <source>If you would like to continue to purge/delete old issues press &quot;Next &gt;&gt;&quot; button or press &quot;Cancel&quot; to quit...</source>
        <translation>Wenn Sie mit dem Löschen alter Vorgänge fortfahren möchten, klicken Sie auf &quot;Weiter &gt;&gt;&quot;, sonst zum Beenden auf &quot;Abbrechen&quot;...</translation>
    </message>
    <message>
        <source>Issue Submit &amp;Date:</source>
        <translation>Eingangs&amp;datum des Vorgangs:</translation>
    </message>
    <message>
        <source>Issue submit date</source>
        <translation>Eingangsdatum des Vorgangs</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Choose the date from a calendar</source>
        <translation>Das Datum in einem Kalender wählen</translation>
    </message>
    <message>
        <source>Issues submitted on that day or before it</source>
        <translation>Vorgänge, die an diesem Tag oder davor eingegangen sind</translation>
    </message>
    <message>
        <source>&amp;Issue Status Criteria:</source>
        <translation>&amp;Kriterium Vorgangsstatus:</translation>
    </message>
    <message>
        <source>Issue status criteria</source>
        <translation>Kriterium Vorgangsstatus</translation>
    </message>
    <message>
        <source>Issues of any other status are left alone</source>
        <translation>Vorgänge mit jedem anderen Status bleiben unberührt</translation>
    </message>
    <message>
        <source>Here&apos;s a preview of all issues that will be deleted...</source>
        <translation>Hier sehen Sie alle Vorgänge, die gelöscht werden...</translation>
    </message>
    <message>
        <source>Issues to delete</source>
        <translation>Zu löschende Vorgänge</translation>
    </message>
    <message>
        <source>Press &quot;Purge Now&quot; to delete these issues or press cancel to quit...</source>
        <translation>Klicken Sie auf &quot;Jetzt löschen&quot;, um diese Vorgänge zu löschen, oder zum Beenden auf Abbrechen...</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation>Den ausgewählten Vorgang öffnen</translation>
    </message>
    <message>
        <source>Prin&amp;t</source>
        <translation>D&amp;rucken</translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation>Die Liste drucken (Strg+P)</translation>
    </message>
    <message>
        <source>This page of the manual (F1)</source>
        <translation>Diese Seite des Handbuchs (F1)</translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Previous</source>
        <translation>&lt;&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;&gt;</source>
        <translation>&amp;Weiter &gt;&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>BACK UP YOUR DATA FIRST! We strongly suggest that you backup your %1 database now, before you purge any old issues... Once you delete issues they cannot be recovered! </source>
        <translation>SICHERN SIE ZUERST IHRE DATEN! Wir raten Ihnen dringend, Ihre %1-Datenbank jetzt zu sichern, bevor Sie alte Vorgänge löschen... Einmal gelöschte Vorgänge lassen sich nicht wiederherstellen! </translation>
    </message>
    <message>
        <source>Issue No.</source>
        <translation>Vorgang Nr.</translation>
    </message>
    <message>
        <source>Submit Date</source>
        <translation>Eingangsdatum</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>Purge &amp;Now</source>
        <translation>&amp;Jetzt löschen</translation>
    </message>
    <message>
        <source>Issues submitted on or before %1 with an issue status of &apos;%2&apos;</source>
        <translation>Vorgänge, eingegangen bis einschließlich %1, mit dem Vorgangsstatus &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 issue(s)</source>
        <translation>%1 Vorgang/Vorgänge</translation>
    </message>
    <message>
        <source>  - Issue Submit Date must be entered.</source>
        <translation>  - Das Eingangsdatum muss eingegeben werden.</translation>
    </message>
    <message>
        <source>  - Issue Submit Date is not a valid date.</source>
        <translation>  - Das Eingangsdatum ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>  - Issue Status Criteria must be selected.</source>
        <translation>  - Ein Vorgangsstatus muss ausgewählt werden.</translation>
    </message>
    <message>
        <source>Please correct the following errors before proceeding:</source>
        <translation>Bitte berichtigen Sie vor dem Fortfahren die folgenden Fehler:</translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation>Die Vorgänge konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Displaying issues that meet the criteria. Please wait...</source>
        <translation>Vorgänge, die den Kriterien entsprechen, werden angezeigt. Bitte warten...</translation>
    </message>
    <message>
        <source>No issue meets the criteria.</source>
        <translation>Kein Vorgang entspricht den Kriterien.</translation>
    </message>
    <message>
        <source>The list was cancelled.</source>
        <translation>Die Liste wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Currently, there are no issues to purge/delete that meet your criteria.</source>
        <translation>Zurzeit gibt es keine zu löschenden Vorgänge, die Ihren Kriterien entsprechen.</translation>
    </message>
    <message>
        <source>Are you sure you want to PERMANENTLY DELETE the displayed issues?</source>
        <translation>Möchten Sie die angezeigten Vorgänge wirklich ENDGÜLTIG LÖSCHEN?</translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>Deleting Issues</source>
        <translation>Vorgänge werden gelöscht</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Bitte warten...</translation>
    </message>
    <message>
        <source>%1 issues have been deleted!</source>
        <translation>%1 Vorgänge wurden gelöscht!</translation>
    </message>
    <message>
        <source>%1 of the issues could not be deleted and remain. Run this wizard again with the same date and status to delete them.</source>
        <translation>%1 der Vorgänge konnten nicht gelöscht werden und bleiben bestehen. Führen Sie diesen Assistenten mit demselben Datum und Status erneut aus, um sie zu löschen.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>frmReportDef</name>
    <message>
        <source>Edit this report definition, or give the edit up (Ctrl+E begins)</source>
        <translation>Diese Berichtsdefinition bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Give the report a title, add the columns to display, and press OK or Apply.</source>
        <translation>Geben Sie dem Bericht einen Titel, fügen Sie die anzuzeigenden Spalten hinzu, und klicken Sie auf „OK“ oder „Übernehmen“.</translation>
    </message>
    <message>
        <source>Report on:</source>
        <translation>Bericht über:</translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation>Beri&amp;cht</translation>
    </message>
    <message>
        <source>Report T&amp;itle:</source>
        <translation>Bericht&amp;stitel:</translation>
    </message>
    <message>
        <source>C&amp;olumns to display, in this order:</source>
        <translation>&amp;Anzuzeigende Spalten, in dieser Reihenfolge:</translation>
    </message>
    <message>
        <source>Columns to display</source>
        <translation>Anzuzeigende Spalten</translation>
    </message>
    <message>
        <source>Choose more columns to display</source>
        <translation>Weitere anzuzeigende Spalten wählen</translation>
    </message>
    <message>
        <source>&amp;Add Columns...</source>
        <translation>S&amp;palten hinzufügen...</translation>
    </message>
    <message>
        <source>Take the selected column out of the report</source>
        <translation>Die ausgewählte Spalte aus dem Bericht nehmen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Show the selected column further left</source>
        <translation>Die ausgewählte Spalte weiter links zeigen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Show the selected column further right</source>
        <translation>Die ausgewählte Spalte weiter rechts zeigen</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Keep only records that meet all of these criteria (= is, # is not):</source>
        <translation>&amp;Nur Datensätze, die alle diese Kriterien erfüllen (= ist, # ist nicht):</translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation>Kriterien</translation>
    </message>
    <message>
        <source>Choose which records the report shows</source>
        <translation>Wählen, welche Datensätze der Bericht zeigt</translation>
    </message>
    <message>
        <source>Add &amp;Criterion...</source>
        <translation>Kriteriu&amp;m hinzufügen...</translation>
    </message>
    <message>
        <source>Take the selected criterion out of the report</source>
        <translation>Das ausgewählte Kriterium aus dem Bericht nehmen</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Show a value of the first column once, not in each row; such a report cannot be re-sorted</source>
        <translation>Einen Wert der ersten Spalte nur einmal zeigen, nicht in jeder Zeile; ein solcher Bericht kann nicht umsortiert werden</translation>
    </message>
    <message>
        <source>Suppress repeatin&amp;g values (first column)</source>
        <translation>&amp;Wiederholte Werte unterdrücken (erste Spalte)</translation>
    </message>
    <message>
        <source>Show Row Num&amp;bers</source>
        <translation>&amp;Zeilennummern zeigen</translation>
    </message>
    <message>
        <source>Printed Page Orientation:</source>
        <translation>Ausrichtung der gedruckten Seite:</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>&amp;Potrait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>Not&amp;izen</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation>Datum, Uhrzeit und Ihren Namen an der Einfügemarke einsetzen</translation>
    </message>
    <message>
        <source>Date-Time Stam&amp;p</source>
        <translation>&amp;Datums-/Zeitstempel</translation>
    </message>
    <message>
        <source>Last Edit</source>
        <translation>Letzte Bearbeitung</translation>
    </message>
    <message>
        <source>Read the report definition again (F5)</source>
        <translation>Die Berichtsdefinition neu lesen (F5)</translation>
    </message>
    <message>
        <source>Delete this report</source>
        <translation>Diesen Bericht löschen</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>Üb&amp;ernehmen</translation>
    </message>
    <message>
        <source>Report Definition: </source>
        <translation>Berichtsdefinition: </translation>
    </message>
    <message>
        <source>Report Definition</source>
        <translation>Berichtsdefinition</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>  - REPORT TITLE must be entered.</source>
        <translation>  - BERICHTSTITEL muss eingegeben werden.</translation>
    </message>
    <message>
        <source>  - Please select at least one column to display.</source>
        <translation>  - Bitte wählen Sie mindestens eine anzuzeigende Spalte.</translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation>Bitte berichtigen Sie die folgenden Eingabefelder:</translation>
    </message>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos;?</source>
        <translation>Möchten Sie „%1“ wirklich *LÖSCHEN*?</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 ist nicht %2</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>Unknown column [%1]</source>
        <translation>Unbekannte Spalte [%1]</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>frmReportDisplay</name>
    <message>
        <source>Customers Report: </source>
        <translation>Kundenbericht: </translation>
    </message>
    <message>
        <source>Issues Report: </source>
        <translation>Vorgangsbericht: </translation>
    </message>
    <message>
        <source>Invalid report type!</source>
        <translation>Ungültige Berichtsart!</translation>
    </message>
    <message>
        <source>Customer Email</source>
        <translation>E-Mail an Kunden</translation>
    </message>
    <message>
        <source>Retrieving email addresses. Please wait...</source>
        <translation>E-Mail-Adressen werden gelesen. Bitte warten...</translation>
    </message>
    <message>
        <source>Email addresses for %1 out of %2 customers either do not exist or are invalid.</source>
        <translation>Die E-Mail-Adressen von %1 der %2 Kunden fehlen oder sind ungültig.</translation>
    </message>
    <message>
        <source> Do you wish to continue?</source>
        <translation> Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>&lt;&lt;Verify Email Address and Enter Subject&gt;&gt;</source>
        <translation>&lt;&lt;E-Mail-Adresse prüfen und Betreff eingeben&gt;&gt;</translation>
    </message>
    <message>
        <source>Here&apos;s a list of email addresses for the displayed customers:</source>
        <translation>Hier ist eine Liste der E-Mail-Adressen der angezeigten Kunden:</translation>
    </message>
    <message>
        <source> allows you to create a data file in DBF/MS FoxPro-compatible format for the customers displayed on this report. The data file created can be used with a mail merge capable program such as Microsoft Word to create customized letters, labels and envelopes. Please consult the documentation for your mail merge capable program (such as Microsoft Word) on how to create mail merged documents from a DBF/MS FoxPro-compatible data file. Please note the FILE TYPE created is &apos;MS FoxPro File&apos;. DATA SOURCE is &apos;FoxPro Files - Word via ODBC(*.dbf)&apos;.</source>
        <translation> kann für die Kunden dieses Berichts eine Datendatei im DBF-/MS-FoxPro-kompatiblen Format erstellen. Die Datendatei lässt sich mit einem seriendruckfähigen Programm wie Microsoft Word verwenden, um individuelle Briefe, Etiketten und Umschläge zu erstellen. Wie man Seriendruckdokumente aus einer DBF-/MS-FoxPro-kompatiblen Datendatei erstellt, lesen Sie bitte in der Dokumentation Ihres seriendruckfähigen Programms (wie Microsoft Word) nach. Bitte beachten Sie: Der DATEITYP ist „MS FoxPro-Datei“. Die DATENQUELLE ist „FoxPro-Dateien - Word über ODBC(*.dbf)“.</translation>
    </message>
    <message>
        <source>Would you like to create the mail merge data file now?</source>
        <translation>Möchten Sie die Seriendruck-Datendatei jetzt erstellen?</translation>
    </message>
    <message>
        <source>Create Mail Merge Data File</source>
        <translation>Seriendruck-Datendatei erstellen</translation>
    </message>
    <message>
        <source>MS FoxPro Files (*.dbf)|*.dbf</source>
        <translation>MS FoxPro-Dateien (*.dbf)|*.dbf</translation>
    </message>
    <message>
        <source> has been created!</source>
        <translation> wurde erstellt!</translation>
    </message>
    <message>
        <source>Mail Merge Data</source>
        <translation>Seriendruckdaten</translation>
    </message>
    <message>
        <source>Creating Mail Merge Data file. Please wait...</source>
        <translation>Die Seriendruck-Datendatei wird erstellt. Bitte warten...</translation>
    </message>
</context>
<context>
    <name>frmReportList</name>
    <message>
        <source>All Reports</source>
        <translation>Alle Berichte</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>0 Report(s)</source>
        <translation>0 Bericht(e)</translation>
    </message>
    <message>
        <source>Define a new report, or view the products and services</source>
        <translation>Einen neuen Bericht definieren oder die Produkte und Leistungen ansehen</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>N&amp;eu</translation>
    </message>
    <message>
        <source>View report</source>
        <translation>Bericht ansehen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nzeigen</translation>
    </message>
    <message>
        <source>Edit report definition</source>
        <translation>Berichtsdefinition bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Make a copy of report definition</source>
        <translation>Die Berichtsdefinition kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation>Die Liste neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Customers</source>
        <translation>&amp;Kunden</translation>
    </message>
    <message>
        <source>Create new report definition</source>
        <translation>Neue Berichtsdefinition anlegen</translation>
    </message>
    <message>
        <source>&amp;Issues</source>
        <translation>&amp;Vorgänge</translation>
    </message>
    <message>
        <source>&amp;Product/Services</source>
        <translation>&amp;Produkte/Leistungen</translation>
    </message>
    <message>
        <source>View Product/Services Report</source>
        <translation>Bericht über Produkte/Leistungen ansehen</translation>
    </message>
    <message>
        <source>Report Title</source>
        <translation>Berichtstitel</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Last Modified By</source>
        <translation>Zuletzt geändert von</translation>
    </message>
    <message>
        <source>Last Modified On</source>
        <translation>Zuletzt geändert am</translation>
    </message>
    <message>
        <source>Date Sort</source>
        <translation>Datum (Sortierung)</translation>
    </message>
    <message>
        <source>There are no reports yet. Press New to define one.</source>
        <translation>Es gibt noch keine Berichte. Wählen Sie „Neu“, um einen zu definieren.</translation>
    </message>
    <message>
        <source> Report(s)</source>
        <translation> Bericht(e)</translation>
    </message>
    <message>
        <source>Do you wish to make a copy of &apos;%1&apos;?</source>
        <translation>Möchten Sie eine Kopie von „%1“ anlegen?</translation>
    </message>
</context>
<context>
    <name>frmRichEdit</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Print the text (Ctrl+P)</source>
        <translation>Den Text drucken (Strg+P)</translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation>Speichern &amp;unter</translation>
    </message>
    <message>
        <source>Save the text in a file (Ctrl+S)</source>
        <translation>Den Text in einer Datei speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Cop&amp;y to Clipboard</source>
        <translation>&amp;In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>frmRptDisplayColumns</name>
    <message>
        <source>Display Columns</source>
        <translation>Anzuzeigende Spalten</translation>
    </message>
    <message>
        <source>Choose the &amp;columns to display:</source>
        <translation>&amp;Wählen Sie die anzuzeigenden Spalten:</translation>
    </message>
    <message>
        <source>Columns to choose from</source>
        <translation>Verfügbare Spalten</translation>
    </message>
    <message>
        <source>Hold Ctrl or Shift down to select several; Ctrl+A selects all.</source>
        <translation>Halten Sie Strg oder die Umschalttaste gedrückt, um mehrere auszuwählen; Strg+A wählt alle aus.</translation>
    </message>
    <message>
        <source>Please select one or more columns to display before pressing OK.</source>
        <translation>Bitte wählen Sie eine oder mehrere anzuzeigende Spalten, bevor Sie auf „OK“ klicken.</translation>
    </message>
</context>
<context>
    <name>frmRptFilterColumns</name>
    <message>
        <source>Add Criterion</source>
        <translation>Kriterium hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation>S&amp;palte:</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Operator:</translation>
    </message>
    <message>
        <source>&amp;IS</source>
        <translation>I&amp;ST</translation>
    </message>
    <message>
        <source>IS &amp;NOT</source>
        <translation>&amp;IST NICHT</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Please select a Column.</source>
        <translation>Bitte wählen Sie eine Spalte.</translation>
    </message>
    <message>
        <source>Please select Value.</source>
        <translation>Bitte wählen Sie einen Wert.</translation>
    </message>
</context>
<context>
    <name>frmRptOption</name>
    <message>
        <source>Print Options</source>
        <translation>Druckoptionen</translation>
    </message>
    <message>
        <source>Report &amp;Title</source>
        <translation>Berichts&amp;titel</translation>
    </message>
    <message>
        <source>Report Title</source>
        <translation>Berichtstitel</translation>
    </message>
    <message>
        <source>Append Print &amp;Date/Time</source>
        <translation>Druck&amp;datum und -zeit anfügen</translation>
    </message>
    <message>
        <source>What to Print</source>
        <translation>Was gedruckt wird</translation>
    </message>
    <message>
        <source>&amp;Entire View</source>
        <translation>&amp;Gesamte Ansicht</translation>
    </message>
    <message>
        <source>&amp;Selected row only</source>
        <translation>&amp;Nur ausgewählte Zeile</translation>
    </message>
    <message>
        <source>Page Orientation</source>
        <translation>Seitenausrichtung</translation>
    </message>
    <message>
        <source>&amp;Portrait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmSearchIssues</name>
    <message>
        <source>Search Issues</source>
        <translation>Vorgänge suchen</translation>
    </message>
    <message>
        <source>&amp;Search For:</source>
        <translation>&amp;Suchen nach:</translation>
    </message>
    <message>
        <source>Empty the search words</source>
        <translation>Die Suchwörter leeren</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>L&amp;eeren</translation>
    </message>
    <message>
        <source>TIP: Separate keywords by spaces</source>
        <translation>TIPP: Trennen Sie Stichwörter durch Leerzeichen</translation>
    </message>
    <message>
        <source>Leave blank to display all issues for the selected Product/Service</source>
        <translation>Leer lassen, um alle Vorgänge des gewählten Produkts oder der Leistung zu sehen</translation>
    </message>
    <message>
        <source>&amp;Match:</source>
        <translation>&amp;Treffer bei:</translation>
    </message>
    <message>
        <source>How the words count</source>
        <translation>Wie die Wörter zählen</translation>
    </message>
    <message>
        <source>TIP: Select &quot;ANY of these Words&quot; to get the most hits</source>
        <translation>TIPP: Mit „EINEM dieser Wörter“ erhalten Sie die meisten Treffer</translation>
    </message>
    <message>
        <source>&amp;Product/Service:</source>
        <translation>&amp;Produkt/Leistung:</translation>
    </message>
    <message>
        <source>Product or service</source>
        <translation>Produkt oder Leistung</translation>
    </message>
    <message>
        <source>TIP: Select SPECIFIC Product/Service to SPEED UP your search</source>
        <translation>TIPP: Ein BESTIMMTES Produkt BESCHLEUNIGT die Suche</translation>
    </message>
    <message>
        <source>Search what:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>S&amp;hort Description</source>
        <translation>&amp;Kurzbeschreibung</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>Res&amp;olution</source>
        <translation>&amp;Lösung</translation>
    </message>
    <message>
        <source>TIP: Checking &apos;Description&apos; or &apos;Resolution&apos; will slow down search</source>
        <translation>TIPP: „Beschreibung“ oder „Lösung“ verlangsamt die Suche</translation>
    </message>
    <message>
        <source>Start from an empty search</source>
        <translation>Mit einer leeren Suche beginnen</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>ANY of these Words</source>
        <translation>EINEM dieser Wörter</translation>
    </message>
    <message>
        <source>ALL of these Words</source>
        <translation>ALLEN diesen Wörtern</translation>
    </message>
    <message>
        <source>All Products/Services</source>
        <translation>Alle Produkte/Leistungen</translation>
    </message>
    <message>
        <source>Please check at least one item next to &apos;Search what&apos;.</source>
        <translation>Bitte wählen Sie bei „Suchen in“ mindestens einen Punkt.</translation>
    </message>
</context>
<context>
    <name>frmSelectIssueTemplate</name>
    <message>
        <source>Select Issue Template</source>
        <translation>Vorgangsvorlage wählen</translation>
    </message>
    <message>
        <source>Issue Templates</source>
        <translation>Vorgangsvorlagen</translation>
    </message>
    <message>
        <source>Start the new issue from the selected template</source>
        <translation>Den neuen Vorgang mit der ausgewählten Vorlage beginnen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation>Die Liste neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>No new issue</source>
        <translation>Kein neuer Vorgang</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Blank Issue</source>
        <translation>Leerer Vorgang</translation>
    </message>
</context>
<context>
    <name>frmSplash</name>
    <message>
        <source>for Windows</source>
        <translation>für Windows</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Info zu %1</translation>
    </message>
    <message>
        <source>Multi-User version </source>
        <translation>Mehrbenutzerversion </translation>
    </message>
    <message>
        <source>  Rev. </source>
        <translation>  Rev. </translation>
    </message>
</context>
<context>
    <name>frmTip</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>Did you know...</source>
        <translation>Wussten Sie schon...</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>&amp;Show tips at startup</source>
        <translation>&amp;Tipps beim Start anzeigen</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Create a text file named </source>
        <translation>Legen Sie eine Textdatei namens </translation>
    </message>
    <message>
        <source> using NotePad with 1 tip per line. </source>
        <translation> mit Notepad an, mit 1 Tipp pro Zeile. </translation>
    </message>
    <message>
        <source>Then place it in the same directory as the application. </source>
        <translation>Legen Sie sie dann in das Verzeichnis der Anwendung. </translation>
    </message>
</context>
<context>
    <name>frmUnderEditMsg</name>
    <message>
        <source>Record Currently Under Edit</source>
        <translation>Datensatz wird gerade bearbeitet</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Edi&amp;t the record anyway</source>
        <translation>&amp;Den Datensatz trotzdem bearbeiten</translation>
    </message>
    <message>
        <source>I will try &amp;later </source>
        <translation>&amp;Später noch einmal versuchen </translation>
    </message>
    <message>
        <source>The record you are trying to edit is currently being edited by user &apos;%1&apos; from machine &apos;%2&apos;

What would you like to do?</source>
        <translation>Der Datensatz, den Sie bearbeiten möchten, wird gerade von Benutzer „%1“ an Computer „%2“ bearbeitet

Was möchten Sie tun?</translation>
    </message>
</context>
<context>
    <name>frmUser</name>
    <message>
        <source>Edit this user, or give the edit up (Ctrl+E begins)</source>
        <translation>Diesen Benutzer bearbeiten oder die Bearbeitung aufgeben (Strg+E beginnt)</translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation>Daten &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>Be&amp;nutzer</translation>
    </message>
    <message>
        <source>&amp;Login Name:</source>
        <translation>&amp;Anmeldename:</translation>
    </message>
    <message>
        <source>&amp;First Name:</source>
        <translation>&amp;Vorname:</translation>
    </message>
    <message>
        <source>L&amp;ast Name:</source>
        <translation>Na&amp;chname:</translation>
    </message>
    <message>
        <source>Depart&amp;ment:</source>
        <translation>Abteil&amp;ung:</translation>
    </message>
    <message>
        <source>Only active users can log in</source>
        <translation>Nur aktive Benutzer können sich anmelden</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>Ak&amp;tiv</translation>
    </message>
    <message>
        <source>Roles &amp;&amp; Permissions</source>
        <translation>Rollen &amp;&amp; Rechte</translation>
    </message>
    <message>
        <source>Administrator Role  (Has ALL rights &amp;&amp; permissions)</source>
        <translation>Administratorrolle  (hat ALLE Rechte)</translation>
    </message>
    <message>
        <source>User Role (Rights &amp;&amp; permissions as follows:)</source>
        <translation>Benutzerrolle (Rechte wie folgt:)</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>N&amp;otizen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Last E&amp;dit</source>
        <translation>&amp;Letzte Bearbeitung</translation>
    </message>
    <message>
        <source>Read the user again (F5)</source>
        <translation>Den Benutzer neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation>Speichern und das Fenster geöffnet lassen (Strg+S)</translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation>Üb&amp;ernehmen</translation>
    </message>
    <message>
        <source>User Properties</source>
        <translation>Benutzereigenschaften</translation>
    </message>
    <message>
        <source>Edit Customers</source>
        <translation>Kunden bearbeiten</translation>
    </message>
    <message>
        <source>Edit Product/Services</source>
        <translation>Produkte/Leistungen bearbeiten</translation>
    </message>
    <message>
        <source>Edit Issues</source>
        <translation>Vorgänge bearbeiten</translation>
    </message>
    <message>
        <source>Edit Reports</source>
        <translation>Berichte bearbeiten</translation>
    </message>
    <message>
        <source>Allow Mail/Email (from Customer Reports)</source>
        <translation>Briefe/E-Mails erlauben (aus Kundenberichten)</translation>
    </message>
    <message>
        <source>List Management</source>
        <translation>Listen verwalten</translation>
    </message>
    <message>
        <source>Database Admin</source>
        <translation>Datenbankverwaltung</translation>
    </message>
    <message>
        <source>NOTE: The initial password for the user is the same as Login Name.</source>
        <translation>HINWEIS: Das anfängliche Kennwort des Benutzers ist sein Anmeldename.</translation>
    </message>
    <message>
        <source>Login Name must be between 3 and 20 characters long.
Login Name may NOT contain spaces.
Login Name may only contain characters (A-Z) or digits (0-9).</source>
        <translation>Der Anmeldename muss zwischen 3 und 20 Zeichen lang sein.
Der Anmeldename darf KEINE Leerzeichen enthalten.
Der Anmeldename darf nur Buchstaben (A-Z) und Ziffern (0-9) enthalten.</translation>
    </message>
    <message>
        <source>Please choose either &apos;Administrator Role&apos; or &apos;User Role&apos; in the &apos;Roles &amp; Permissions&apos; section.</source>
        <translation>Bitte wählen Sie im Abschnitt „Rollen &amp; Rechte“ entweder „Administratorrolle“ oder „Benutzerrolle“.</translation>
    </message>
    <message>
        <source>Login name must be unique within the database!</source>
        <translation>Der Anmeldename muss in der Datenbank eindeutig sein!</translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>Edit Users</source>
        <translation>Benutzer bearbeiten</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Add a user (Ins)</source>
        <translation>Einen Benutzer hinzufügen (Einfg)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>Open the selected user (Enter)</source>
        <translation>Den ausgewählten Benutzer öffnen (Eingabe)</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>Ei&amp;genschaften...</translation>
    </message>
    <message>
        <source>Tells how to keep the selected user out (Del)</source>
        <translation>Zeigt, wie man den ausgewählten Benutzer aussperrt (Entf)</translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation>&amp;Entfernen...</translation>
    </message>
    <message>
        <source>Make the selected user&apos;s password the login name again</source>
        <translation>Das Kennwort des ausgewählten Benutzers wieder auf den Anmeldenamen setzen</translation>
    </message>
    <message>
        <source>Re&amp;set Password...</source>
        <translation>&amp;Kennwort zurücksetzen...</translation>
    </message>
    <message>
        <source>Read the users again (F5)</source>
        <translation>Die Benutzer neu lesen (F5)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>0 user(s)</source>
        <translation>0 Benutzer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Login Name</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Active?</source>
        <translation>Aktiv?</translation>
    </message>
    <message>
        <source>The users could not be read.</source>
        <translation>Die Benutzer konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source> user(s)</source>
        <translation> Benutzer</translation>
    </message>
    <message>
        <source>SYSOP is a system account. It cannot be modified. You can, however, change password for SYSOP. To change password for SYSOP, login as SYSOP (initial password for SYSOP is SYSOP) and choose File, Change Password... menu.</source>
        <translation>SYSOP ist ein Systemkonto. Es kann nicht geändert werden. Sie können aber das Kennwort von SYSOP ändern. Melden Sie sich dazu als SYSOP an (das anfängliche Kennwort von SYSOP ist SYSOP), und wählen Sie Datei, Kennwort ändern... im Menü.</translation>
    </message>
    <message>
        <source>To preserve history of edits by a user, deletion of users is NOT allowed. However, you may INACTIVATE a user by unchecking the Active checkbox on User Properties dialog box.

Would like to view Properties for this user?</source>
        <translation>Damit der Verlauf der Bearbeitungen eines Benutzers erhalten bleibt, dürfen Benutzer NICHT gelöscht werden. Sie können einen Benutzer aber INAKTIV machen, indem Sie im Fenster „Benutzereigenschaften“ das Häkchen bei „Aktiv“ entfernen.

Möchten Sie die Eigenschaften dieses Benutzers sehen?</translation>
    </message>
    <message>
        <source>Do you want to RESET the password for user &apos;%1&apos;?

After reset, the password will be:
%1</source>
        <translation>Möchten Sie das Kennwort des Benutzers „%1“ ZURÜCKSETZEN?

Danach lautet das Kennwort:
%1</translation>
    </message>
    <message>
        <source>The password for user &apos;%1&apos; has been reset to: %1</source>
        <translation>Das Kennwort des Benutzers „%1“ wurde zurückgesetzt auf: %1</translation>
    </message>
    <message>
        <source>Unable to reset password!</source>
        <translation>Das Kennwort kann nicht zurückgesetzt werden!</translation>
    </message>
</context>
<context>
    <name>frmWelcome</name>
    <message>
        <source>Help Center</source>
        <translation>Hilfezentrum</translation>
    </message>
    <message>
        <source>Where to go from here</source>
        <translation>Wie es weitergeht</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t show at startup</source>
        <translation>&amp;Beim Start nicht anzeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Willkommen bei %1</translation>
    </message>
    <message>
        <source>You are logged in as &apos;%1&apos; from machine &apos;%2&apos;</source>
        <translation>Sie sind als „%1“ an Computer „%2“ angemeldet</translation>
    </message>
    <message>
        <source>You are accessing %1 database located at: %2</source>
        <translation>Sie arbeiten mit der %1-Datenbank in: %2</translation>
    </message>
    <message>
        <source>Application Version: %1.%2 Rev. %3</source>
        <translation>Programmversion: %1.%2 Rev. %3</translation>
    </message>
</context>
<context>
    <name>reports</name>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Issues</source>
        <translation>Vorgänge</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>templates</name>
    <message>
        <source>Issue Templates</source>
        <translation>Vorgangsvorlagen</translation>
    </message>
</context>
</TS>
