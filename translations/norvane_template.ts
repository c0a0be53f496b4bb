<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>Advice</name>
    <message>
        <source>the file or a part of it is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another station holds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is of a kind that Norvane does not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file went away while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore all files of the folder together from your last backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the database at all stations, copy the folder, and run &apos;norvanectl repair&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data is lost: close the database at all stations, copy the folder, and run &apos;norvanectl repair&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (at %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check again when nobody is saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask for the right to read and write the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check again when the computer that holds the folder is up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look whether you may read the file and whether its disk is in order, and check again. Nothing says that data is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> This will rebuild the index from the rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> What that cannot put right is to be restored from your last backup, all files of the folder together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes and other long texts may be lost. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> This will build the index from the rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening the database in Norvane puts an empty one in its place; if it held data, restore it from your last backup first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table was made by another program or version. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one of the rows can be opened. Dump the table, and save the record that is wrong anew or delete it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers that are in use are passed over. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentFolder</name>
    <message>
        <source>No such folder or name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachmentsCtl</name>
    <message>
        <source>Attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 attachment(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach a copy of a file to this record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the attachment with the program for it (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a copy of the attachment elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the attachment (Del); F2 renames it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is attached. Press Attach File, or drop files here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 attachment(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file to attach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to create directory: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder. Only files can be attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of an attachment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source and Destination files are identical!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is already attached to this document. Do you want to overwrite existing attachment?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying &apos;%1&apos;...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to copy &apos;%1&apos; to &apos;%2&apos;! %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to PERMANENTLY DELETE this attachment: &apos;%1&apos; ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to delete &apos;%1&apos;!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Attachment As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has been saved!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to rename &apos;%1&apos; to &apos;%2&apos; ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already an attachment named &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to rename &apos;%1&apos; to &apos;%2&apos;!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Atta&amp;ch File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy of </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactsGrid</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The file &apos;%1&apos; cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomerItemForm</name>
    <message>
        <source>The Customer record to which this Product/Service record belongs no longer exists or is inaccessible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record was deleted, but not all of its attachments. What is left of them is in the folder &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos; and all of its attachments (if any)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditModeCtl</name>
    <message>
        <source>edit-data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read-only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EngineFailures</name>
    <message>
        <source>The file &apos;%1&apos; lacks a part that this program works with: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is missing. All files of a database must be together in its folder. Please restore the data folder from your latest backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (at %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.

Please make a copy of the whole data folder first. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then choose Database Maintenance to re-index this file. Your data is not in it and is not lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then choose Database Maintenance to re-index the table, or restore the data folder from your latest backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in use by another workstation. Please try again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be changed: it or its folder is read-only for you. Please ask your administrator for the right to change files in the data folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; holds something this program does not work with: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that holds &apos;%1&apos; is full. Nothing was saved. Please make room and save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has reached the largest size it can have. Nothing was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be reached any more. If the data folder is on another computer, please verify that computer is up and running, and then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory. Nothing was saved. Please close other programs and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be read or written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>Out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error</source>
        <translation type="unfinished"></translation>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CodeBasic Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileCopy</name>
    <message>
        <source>There is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source and target are the same file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderCheck</name>
    <message>
        <source>the file is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more findings like these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The advice above holds for them too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field %1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tag %1 is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows have the rowid %2, which no record has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows share the rowid %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 counters for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2, which is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2, but %3 is in use already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows name a record of %2 in the field %3 that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screens show nothing in that place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderRepair</name>
    <message>
        <source>the file was missing and is there again, empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more lines like these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is open at another station, so it was left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row has the highest rowid there can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the next identifier for %1 is %2 now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GridSaving</name>
    <message>
        <source>Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS Excel Comma Delimited File (*.csv)|*.csv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been saved. Would you like to open this file now?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GuiPrinting</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpPopup</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>%1 Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;rward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportPreview</name>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Data Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing preview of data. If you don&apos;t care to see a preview of the entire file, you may press cancel to continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportRun</name>
    <message>
        <source>Import Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Integrating data. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open Customer table!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open Category table!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportTargets</name>
    <message>
        <source>A sample import file called &apos;%1&apos; is available in %2 to get you started. You can open this file with MS Excel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The import file format required is a Comma Separated Value file, usually prepared in MS Excel and Saved, As &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here&apos;s how an import file should look like when opened with Windows Notepad Application:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 allows you to import items into this list from a file. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first row (Row 1) of the import file must contain column headings. The only column heading required for this import is:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All rows (except the first row which must contain the column heading) in the import file are added as NEW items into the list. Description for each item should appear starting from Row 2. We recommend preparing this file in MS Excel and saving as &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 allows you to import Customer information into its database from a file. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first row (Row 1) of the import file must contain column headings. The only column headings required for this import file are LASTNAME and COMPANY. The rest of the columns are optional. Here&apos;s a list of all the recognized/importable column headings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each column heading must appear in a separate column. All rows (except the first row which must contain the column heading) in the import file are added as NEW customers. Data for each customer should appear starting from Row 2. We recommend preparing this file in MS Excel and saving as &apos;CSV (Comma Delimited)&apos; file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lookup List: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products &amp; Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IMPORT - %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IssueActionsCtl</name>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Duration = 0.00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note an action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No action has been noted for this issue yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Duration = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Action has been deleted!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IssueFieldsCtl</name>
    <message>
        <source>Customer Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to open the customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of products and services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assigned To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of issue priorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of issue statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of issue categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a date from the calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar for the submit date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar for the response date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar for the resolution date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IssueRecordForm</name>
    <message>
        <source>Short Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assigned To::</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LabelledLine</name>
    <message>
        <source>Last Modified By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Modified On:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Modified At:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListBoxes</name>
    <message>
        <source>Please select a listbox item first!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListViewFiles</name>
    <message>
        <source> KB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LongSort</name>
    <message>
        <source>Sorting the list. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LookupLists</name>
    <message>
        <source>Edit Customer Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Products/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit States/Provinces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>States/Provinces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Countries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Priorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Contract Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Contract Durations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Quick Entry List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Entry List</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Mail</name>
    <message>
        <source>Unable to initiate your email software! 

There is no Microsoft SIMPLE MAPI (Messaging Application Programming Interface) compatible email application (such Microsoft Outlook EXPRESS) installed on your machine.

Please choose View, Options menu to check or change your Email options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to initiate Microsoft Outlook!

If you intend to use Microsoft Outlook, please make sure Microsoft Outlook is installed on your machine and is functioning properly.

Please choose View, Options menu to check or change your Email options.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailMerge</name>
    <message>
        <source>The template of the mail merge file, &apos;%1&apos;, could not be copied.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintDoor</name>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF File (*.pdf)|*.pdf</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintList</name>
    <message>
        <source>The list is empty. There is nothing to print.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintPages</name>
    <message>
        <source>Printer error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintProgress</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing pages. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing page %1 of %2. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProductReportRun</name>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cust Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is Active?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NO</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unable to open the user manual &apos;%1&apos;. Please install %2 again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordForm</name>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Edi&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to discard your changes (if any)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt;Verify Email Address and Enter Subject&gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reindex</name>
    <message>
        <source>the file &apos;%1&apos; is missing; please re-install the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the index could not be copied to &apos;%1&apos;; the folder may be read-only or the disk full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is open at another station</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportRun</name>
    <message>
        <source>Invalid table name found in the report column table!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid report type!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open selected record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a text in the report (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ind...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the report again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to the customers of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a mail merge file of the customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mail Merge...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as a comma-delimited file (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the report (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report definition does not specify any columns to display!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This report cannot be re-sorted because the report definition &apos;Suppresses repeating values&apos; in the first column of the report!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a row first!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find in </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the top of this view?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No occurences of &apos;%1&apos; found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is empty. There is nothing to print.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source> is already running!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatisticCtl</name>
    <message>
        <source>Last Modified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextSaving</name>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been saved as MS Word document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS Word (*.doc)|*.doc|Rich Text Format (*.rtf)|*.rtf|Text Document (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>Unable to write to : %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file may already be open by another application.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WordConversion</name>
    <message>
        <source>Unable to convert to an MS Word document: %1
The text has been saved in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS Word must be installed to use this option!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting to an MS Word document. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsCustomLabels</name>
    <message>
        <source>Customer Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address (line 1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address (line 2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract or Part Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Initiated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Terminated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsDB</name>
    <message>
        <source>Record cannot be accessed or no longer exists. It may have been deleted by another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; could not be created. The folder may be read-only or the disk full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 database consists of the following %2 files. All these files must exist together in a directory before a database can be opened. All these files must be BACKed up together as a unit and if needed, RESTOREd together as a unit

%3

NOTE: The attachments of your records are stored in the subdirectory &apos;%4&apos; under your Norvane Data directory. Therefore, you will also need to back up all directories and files under %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you have not previously created %1 database, please choose File, New Database... menu or if you have moved the %1 database files to another location choose File, Open Database... menu and select the directory that contains these files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN FAILED!
The following data files are missing from the directory &apos;%1&apos;:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEW DATABASE CREATION FAILED!
The following data files already exist in the directory &apos;%1&apos;:
%2
Please select a directory that does not already contain %3 database or choose File, Open Database... menu to open an existing database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please try re-installing %1 to resolve this issue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to get next id (locked)!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to update record!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CODE4 could NOT be initialized!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN FAILED!
Directory &apos;%1&apos; does not exist OR is NOT accessible at this time. If this directory is located on another computer on the network, please verify that computer is up and running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the users who have &apos;admin&apos; role can perform this action!

If you believe you should be able to perform this function, please ask your administrator to change your role to &apos;admin&apos; (See Database Admin, User Management icon).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, you are not permitted to perform this action. Please ask your system administrator to grant this permission to your login &apos;%1&apos;. After your system administrator has granted you the permission, you will need to close down and then re-open %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to update %1!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to update this item in table %1! It may have been deleted by another user. Press Refresh to get the latest list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPEN FAILED!
The directory &apos;%1&apos; does not take record locks (%2). Without them workstations would overwrite each other&apos;s work.

Please ask your administrator to switch on file locking for this network directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the record locks of the workstations do not reach each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file &apos;%1&apos; is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is damaged (%2), and mending it could lose something. Therefore this database is open for reading only: what can be read can be looked at, and nothing can be changed.

Please make a copy of the whole data folder first. Then let everybody close the database and run &apos;norvanectl repair&apos;, or restore the data folder from your latest backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you have no right to change the file &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have no right to change the file &apos;%1&apos;. Therefore this database is open for reading only: everything can be looked at, and nothing can be changed.

Please ask your administrator for the right to change the files in the data folder. Then open the database again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed: this database is open for reading only, because %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ROWID NOT FOUND: Unable to update record!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read row_id %1 from table %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RECORD LOCKED: Unable to Delete from %1(id=%2) !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to create subdirectory for attachments: &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record locks of the workstations in &apos;%1&apos; do not reach each other, so that two people could overwrite each other&apos;s work. Therefore this database is now open for reading only.

Please ask your administrator to connect this network directory with working locks at every workstation (without options like nolock, local_lock or nobrl). Then open the database again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>administrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>user</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsDBBulk</name>
    <message>
        <source>Adding issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsDBUtil</name>
    <message>
        <source>No database is currently open. See File menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Database Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsImportData</name>
    <message>
        <source>must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be between %1 and %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>must be either &apos;Y&apos; or &apos;N&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: A value must be entered for column %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The value [%2] entered for column %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Missing data. Number of entries on this row do NOT equal the number of columns on the first row. LINE CONTENT: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Required column &apos;%1&apos; is missing from the first row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unrecognized column &apos;%1&apos; found on the first row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read column headers from row 1 of file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Validating Data. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The line is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MORE THAN 50 ERRORS ENCOUNTERED. ABORTING...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file changed while it was checked. Try again when no other program writes to it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>clsSystem</name>
    <message>
        <source>Unable to write to : %1. This file may already be open by another application.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open folder &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to launch &apos;%1&apos;! No application may be associated with this file type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error # %1 was generated by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a numeric value!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCalendar</name>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goto today&apos;s date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go to Today</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmChangePWD</name>
    <message>
        <source>Change Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retype Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect Password, try again!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password you entered in the two entry boxes do not match. Please enter identical passwords in both entry boxes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must be at least 3 characters long or at most 20 characters long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password cannot contain spaces!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password contains characters that cannot be stored! Please use other ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter your new password twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You will first enter your current password and then your new password.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCustomer</name>
    <message>
        <source>Edit this customer, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Apply button to save this customer and to access Product/Services and Issues tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary &amp;Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salutation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Miss.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mrs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rev.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prof.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of customer categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address (line 1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address (line 2):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>City:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of states</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postal Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of countries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax Phone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Email:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a message to this address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to the default email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate Email:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to the alternate email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional contacts for this customer can be entered under the &apos;Notes&apos; tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes &amp;&amp; Additional Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional C&amp;ontacts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional Contacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products/&amp;Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The customer&apos;s products and services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 products/services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a product or service to this customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected product or service (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;operties...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this list (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print List...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The customer&apos;s issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log an issue of this customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected issue (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mailing label text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email customer information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print  Preview customer information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the customer again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer&apos;s last name or company name must be specified!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default email address entered is not a valid email address!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alternate email address entered is not a valid email address!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The additional contacts hold more text than can be stored. Please shorten them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are %1 other customer(s) with the same %2 &apos;%3&apos; in your database. Choose View | Lookup Customer to find the customers with the same %2. 

Do you want to add this customer with the duplicate %2 anyways?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - &apos;%1&apos; has Product/Services associated (Cancel Edit &amp; see Product/Services tab).
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - &apos;%1&apos; has Issues associated (Cancel Edit &amp; see Issues tab).
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to delete customer because:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mailing label text for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This customer has no product or service yet. Press New to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This customer has no issue yet. Press New to log one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 products/services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Product/Service is currently selected. Please make a selection first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Issue is currently selected. Please make a selection first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Services List for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue List for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUSTOMER INFORMATION (%1)

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Additional Contacts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCustomerList</name>
    <message>
        <source>Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 Customer(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Customer(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The customers could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no customers in this database yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No customer matches this search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching Customers. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listing Customers. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers (Address contains &apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Customers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDBMaint</name>
    <message>
        <source>Database Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data &amp;files:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Re-Index...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build the index of the selected file anew from its rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chec&amp;k...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look whether the selected file and its index are sound; changes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page of the manual (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WARNING: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Backup your Database Files (See Help menu) before performing any maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. Make sure no one is using the application before performing any maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data file selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a data file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are about to Re-Index the following file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This operation may take several minutes and requires exclusive access to data files. Do you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re-Index Data File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indexing %1 ... Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed. Close the database at all other stations and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The index as it was is kept in &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been re-indexed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Indexed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to index file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Indexing Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking %1 ... Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and its index are sound. There is nothing to do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Data File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check of %1 found this:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The button Re-Index rebuilds the index here and now, if nobody else has the database open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmDataImport</name>
    <message>
        <source>Import Data Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you would like to continue to import data press &quot;Next &gt;&gt;&quot; button or press &quot;Cancel&quot; to quit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press &quot;Import Now&quot; to import data or press cancel to quit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next &gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This wizard will guide you through importing data into %1. Please select the data you would like to import from the following list:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What a file for this row looks like (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter or browse to the file that contains data for &apos;%1&apos; :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are about to import &apos;%1&apos; from file: &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Data Import File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS Excel Comma Delimited File (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the name of the data file to import.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not exist!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check did not reach the end of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IMPORT FAILED FROM FILE %1!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data file you are about to import contains %1 rows of data and may take a long time to import. We suggest importing this file when you will NOT be using your computer for a FEW HOURS (such as overnight). Do you still wish to continue now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to import data!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1 Records!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows tried, %2 stored, %3 skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> because the list has them already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows could not be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has changed since it was checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows hold letters that cannot be stored; a ? stands for each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Larger View...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rows in a window as large as the screen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditCategories</name>
    <message>
        <source>Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add an item and type its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all items that no record uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview and print the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press F2 or Enter, or double-click an item, to rename it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This list has no items yet. Press New to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is under use and cannot be deleted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete ALL items in this list?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete ALL Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting items. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmEditIssueTemplates</name>
    <message>
        <source>Issue Templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a template and type its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the list and edit the selected template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview and print the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press F2, or click the selected template once more, to rename it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Templates  - Prompt user to select an issue template when creating a new issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no issue templates yet. Press New to add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Templates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmFind</name>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fi&amp;nd what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match &amp;whole word only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No occurences of &apos;%1&apos; found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the end of this text?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more occurences of &apos;%1&apos; found! Would you like to search from the top of this text?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmImportPreview</name>
    <message>
        <source>Import Data Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are about to import the following data. Press Continue to proceed or press Cancel to quit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmIssue</name>
    <message>
        <source>Edit this issue, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Apply button to save this issue and to access Actions and Attachments tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attac&amp;hments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email issue details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print  Preview issue details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the issue again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - PRODUCT/SERVICE must be selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - SHORT DESCRIPTION must be entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - SUBMIT DATE is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - RESPONSE DATE is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - RESOLUTION DATE is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISSUE DETAILS (%1)

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Response Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmIssueAction</name>
    <message>
        <source>&amp;Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a date from the calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar for the date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of issue actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the unit that your office counts in, such as hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Issue Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issue Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Issue Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Issue Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Issue record to which this Action record belongs to no longer exists or is inaccessible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DATE entered is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DATE must be entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - ACTION must be selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DURATION must be numeric.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record cannot be accessed or no longer exists. It may have been deleted by another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Issue Action?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmIssueList</name>
    <message>
        <source>Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click a column header to sort results by that column&apos;s data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 Issue(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Issue(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching Issues. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues (Search =&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No issue matches this search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The description or resolution of %1 issue(s) is damaged and could not be searched. These issues are missing from the list, unless they were found by another text.

Please make a copy of the whole data folder, and restore the damaged file from your latest backup.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmIssueTemplate</name>
    <message>
        <source>Edit this issue template, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email issue template details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print  Preview issue template details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the issue template again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this issue template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Template: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISSUE TEMPLATE: %1

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Database Location:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Login Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unless changed, BOTH the initial Login Name and Password for a new database is SYSOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login Name must be entered!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must be entered!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Login Name or Password! Please try again.

If you believe you are getting this message in error, please ask your administrator to check whether your Login Name exists in the system. Your administrator can:
  - Add a Login Name for you
  - Activate a Login Name if it is not ACTIVE
  - Reset your Password to your Login Name (if you have forgotten your password)

Please note BOTH the Login Name and Password for a new database is SYSOP</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLookupCustomer</name>
    <message>
        <source>Lookup Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search &amp;By:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search String:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIP: Leave blank to display all customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> starts with or is:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primary Contact&apos;s </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone/Address/City/Zip contains:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer ID is:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer ID must be numeric!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;Search String:&apos; must be entered. Request &apos;Edit Report&apos; permission from your administrator to enable query without search string.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>No database is open.
File, Open Database... opens one you have; File, New Database... creates one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (read-only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Location: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose File menu to open or create database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Machine: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-User version </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*CURRENT* Password for &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*NEW* Password for &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your password has been changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Lookup List Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counting records. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DATABASE STATISTICS [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please note this count may include deleted records as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Customer ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a numeric value for Customer ID!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Issue ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a numeric value for Issue ID!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To correct this problem, please re-install %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are about to create a NEW %1 Database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SHARED/NETWORK DATABASE: If you would like to share the new database with other users on your Local Area Network, you may want to create this database on a File Server or a Shared Network Directory that is accessible by other users. While you are creating the new database, please note the network directory location of the new database. Other users will need to select this network directory location when they choose File, Open Database... from their machines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LOCAL DATABASE: If you are creating the new database for your exclusive use, you may want to create the database on your local machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEW DATABASE: Please select the Directory where you want to store the new %1 database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEW DATABASE CREATED! Initial Login and Password is SYSOP (Multi-user version only)
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New %1 database has been created in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you are sharing this data with other users, please note this directory location. Other users will need to specify this location when opening the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next you will login into the new database (Multi-user version only)...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EXISTING DATABASE: Please select the Directory that contains an existing %1 database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[The data directory will be specified here once you create/open a Norvane Database]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKING UP, COPYING OR MOVING YOUR DATABASE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In order to safe keep your %1 database in case of computer failure or data corruption we suggest that you periodically copy all %1 files AND sub-directories in the following directory:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to a removable media such as tape media, floppy disk, zip or jaz disk, CDR, tape or to another computer on your network. THIS IS THE ONLY WAY TO RECOVER YOUR DATA IN CASE YOUR DATABASE GETS CORRUPTED!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL %1 database files in the directory above must be BACKed up together and if needed, RESTOREd together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We suggest use of UPS (Uninterruptible Power Supply) for machines that access or host the database. Never reboot your machine while you are editing %1 data. Please consult your Network or System Administrator for advice on how to protect your %1 data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We suggest backing up data at the end of each day so the most you will loose in case of system failure is one day&apos;s work. Please consult YOUR Network Administrator to come up with a backup and disaster recovery scheme that suits your needs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look up a customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a new customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip of the day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tour in pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specifications Sheet (pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to backup your data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support for %1 can be obtained online at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to go to this website?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Database...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Database...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Data Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change Password...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lookup Customer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search &amp;Issues...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lookup by Issue ID...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;My Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Categories...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products &amp;&amp; Services...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Types...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Durations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>States/Provinces...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countries...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Statuses...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Actions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Priorities...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Categories...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Management...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Templates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Data Wizard...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customizations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Options...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile &amp;Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile &amp;Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cascade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Arrange Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAQs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lookup Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lookup by Issue ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products &amp;&amp; Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Durations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>States &amp;&amp; Provinces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Statuses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Priorities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Data Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customizations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recent Databases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purge Old Issues Wizard...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database &amp;Maintenance...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Bulk Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purge Old Issues Wizard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMessage</name>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the message (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the message in a file (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email the message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the whole message to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMyIssues</name>
    <message>
        <source>My Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Assigned To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assigned to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh every 5 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;uto Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click a column header to sort results by that column&apos;s data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 Issue(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Issue(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Sorting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un-Assigned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displaying My Issues. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Issues (Assigned to: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, Status =&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No issue is assigned like this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Email Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages open as a draft in the program for email files (.eml)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Microsoft &amp;Outlook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages open in the mail program of this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use SIMPLE &amp;MAPI to send email messages. Use this option if you use Microsoft Outlook EXPRESS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPS</name>
    <message>
        <source>Edit this record, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Apply button to save this record and to access Attachments tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;roduct/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to open the customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of products and services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract or Part Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of contract types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract Duration:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of contract durations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Initiated:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick the date initiated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Terminated:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick the date terminated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active: YES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the first custom field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify list of entries for the second custom field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time &amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Edi&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email product/service details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print  Preview product/service details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the record again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this record and its attachments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App&amp;ly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - PRODUCT/SERVICE must be selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DATE INITIATED is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DATE TERMINATED is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - DATE TERMINATED cannot be before DATE INITIATED.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active: NO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PRODUCT/SERVICE DETAILS

</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPSFilterDlg</name>
    <message>
        <source>Product/Service Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Product/Service:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is &amp;Active?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>custom1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom 2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>custom2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip: Leave all fields blank to view all Products/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPreferences</name>
    <message>
        <source>Customizations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names of:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty all custom names of this window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave Custom Display Name (2nd column) blank to use Default Names (first column)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a customer&apos;s name as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Display Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Default Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save changes for this window?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPreview</name>
    <message>
        <source>Choose a printer and print (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the pages as a PDF file (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as PDF...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller (Ctrl+-)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger (Ctrl++)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a whole page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Preview - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmProductReportDisplay</name>
    <message>
        <source>Product/Service Report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmProgress</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmPurgeIssues</name>
    <message>
        <source>Purge (Delete) Old Issues Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to &amp;backup data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to copy, and where it lies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you would like to continue to purge/delete old issues press &quot;Next &gt;&gt;&quot; button or press &quot;Cancel&quot; to quit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Submit &amp;Date:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue submit date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the date from a calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues submitted on that day or before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issue Status Criteria:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue status criteria</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues of any other status are left alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here&apos;s a preview of all issues that will be deleted...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues to delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press &quot;Purge Now&quot; to delete these issues or press cancel to quit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prin&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the list (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page of the manual (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt; &amp;Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next &gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACK UP YOUR DATA FIRST! We strongly suggest that you backup your %1 database now, before you purge any old issues... Once you delete issues they cannot be recovered! </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purge &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues submitted on or before %1 with an issue status of &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 issue(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - Issue Submit Date must be entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - Issue Submit Date is not a valid date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - Issue Status Criteria must be selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please correct the following errors before proceeding:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The issues could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displaying issues that meet the criteria. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No issue meets the criteria.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currently, there are no issues to purge/delete that meet your criteria.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to PERMANENTLY DELETE the displayed issues?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Confirmation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 issues have been deleted!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the issues could not be deleted and remain. Run this wizard again with the same date and status to delete them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReportDef</name>
    <message>
        <source>Edit this report definition, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the report a title, add the columns to display, and press OK or Apply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report on:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report T&amp;itle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;olumns to display, in this order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns to display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose more columns to display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Columns...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected column out of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the selected column further left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the selected column further right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep only records that meet all of these criteria (= is, # is not):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Criteria</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose which records the report shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Criterion...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected criterion out of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a value of the first column once, not in each row; such a report cannot be re-sorted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suppress repeatin&amp;g values (first column)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Row Num&amp;bers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed Page Orientation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Potrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the date, the time and your name at the cursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date-Time Stam&amp;p</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the report definition again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Definition: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - REPORT TITLE must be entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - Please select at least one column to display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please correct the following data entry fields:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to *DELETE*  &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown column [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReportDisplay</name>
    <message>
        <source>Customers Report: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues Report: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid report type!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retrieving email addresses. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email addresses for %1 out of %2 customers either do not exist or are invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Do you wish to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;&lt;Verify Email Address and Enter Subject&gt;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Here&apos;s a list of email addresses for the displayed customers:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> allows you to create a data file in DBF/MS FoxPro-compatible format for the customers displayed on this report. The data file created can be used with a mail merge capable program such as Microsoft Word to create customized letters, labels and envelopes. Please consult the documentation for your mail merge capable program (such as Microsoft Word) on how to create mail merged documents from a DBF/MS FoxPro-compatible data file. Please note the FILE TYPE created is &apos;MS FoxPro File&apos;. DATA SOURCE is &apos;FoxPro Files - Word via ODBC(*.dbf)&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to create the mail merge data file now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Mail Merge Data File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MS FoxPro Files (*.dbf)|*.dbf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has been created!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail Merge Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating Mail Merge Data file. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmReportList</name>
    <message>
        <source>All Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 Report(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Define a new report, or view the products and services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit report definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a copy of report definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new report definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Product/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Product/Services Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Modified By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Modified On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Sort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no reports yet. Press New to define one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Report(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to make a copy of &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRichEdit</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the text (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the text in a file (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;y to Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRptDisplayColumns</name>
    <message>
        <source>Display Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the &amp;columns to display:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns to choose from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold Ctrl or Shift down to select several; Ctrl+A selects all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select one or more columns to display before pressing OK.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRptFilterColumns</name>
    <message>
        <source>Add Criterion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Column:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;IS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IS &amp;NOT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a Column.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select Value.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmRptOption</name>
    <message>
        <source>Print Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report &amp;Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append Print &amp;Date/Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Entire View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Selected row only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSearchIssues</name>
    <message>
        <source>Search Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search For:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty the search words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIP: Separate keywords by spaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave blank to display all issues for the selected Product/Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Match:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the words count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIP: Select &quot;ANY of these Words&quot; to get the most hits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Product/Service:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product or service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIP: Select SPECIFIC Product/Service to SPEED UP your search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search what:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hort Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Res&amp;olution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIP: Checking &apos;Description&apos; or &apos;Resolution&apos; will slow down search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start from an empty search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANY of these Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL of these Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Products/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check at least one item next to &apos;Search what&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSelectIssueTemplate</name>
    <message>
        <source>Select Issue Template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issue Templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the new issue from the selected template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the list anew (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No new issue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blank Issue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmSplash</name>
    <message>
        <source>for Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multi-User version </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Rev. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTip</name>
    <message>
        <source>Tip of the Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Did you know...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show tips at startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a text file named </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> using NotePad with 1 tip per line. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then place it in the same directory as the application. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUnderEditMsg</name>
    <message>
        <source>Record Currently Under Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t the record anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I will try &amp;later </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record you are trying to edit is currently being edited by user &apos;%1&apos; from machine &apos;%2&apos;

What would you like to do?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUser</name>
    <message>
        <source>Edit this user, or give the edit up (Ctrl+E begins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edi&amp;t Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Login Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;ast Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depart&amp;ment:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only active users can log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roles &amp;&amp; Permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administrator Role  (Has ALL rights &amp;&amp; permissions)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Role (Rights &amp;&amp; permissions as follows:)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last E&amp;dit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the user again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and keep the window open (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appl&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Product/Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Mail/Email (from Customer Reports)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Admin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOTE: The initial password for the user is the same as Login Name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login Name must be between 3 and 20 characters long.
Login Name may NOT contain spaces.
Login Name may only contain characters (A-Z) or digits (0-9).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please choose either &apos;Administrator Role&apos; or &apos;User Role&apos; in the &apos;Roles &amp; Permissions&apos; section.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login name must be unique within the database!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmUsers</name>
    <message>
        <source>Edit Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a user (Ins)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected user (Enter)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells how to keep the selected user out (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the selected user&apos;s password the login name again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;set Password...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the users again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 user(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Role</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The users could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> user(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SYSOP is a system account. It cannot be modified. You can, however, change password for SYSOP. To change password for SYSOP, login as SYSOP (initial password for SYSOP is SYSOP) and choose File, Change Password... menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To preserve history of edits by a user, deletion of users is NOT allowed. However, you may INACTIVATE a user by unchecking the Active checkbox on User Properties dialog box.

Would like to view Properties for this user?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to RESET the password for user &apos;%1&apos;?

After reset, the password will be:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password for user &apos;%1&apos; has been reset to: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to reset password!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmWelcome</name>
    <message>
        <source>Help Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to go from here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don&apos;t show at startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are logged in as &apos;%1&apos; from machine &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are accessing %1 database located at: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Version: %1.%2 Rev. %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>reports</name>
    <message>
        <source>Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Issues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>templates</name>
    <message>
        <source>Issue Templates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
