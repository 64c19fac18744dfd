' Hands the settings of a query to the control and prints what comes back.
'   cscript print-settings.vbs
' Both libraries have to be registered: regsvr32 ORXKMPrintProp.dll and regsvr32 PrnPropTables.dll
Option Explicit

Function NewTable(columns)
  Dim column
  Set NewTable = CreateObject("PrnPropTables.Table")
  For Each column In Split(columns)
    NewTable.AddColumn column
  Next
End Function

' A number has to stand in every cell that holds one.
Sub AddCharacteristic(table, name, caption, position)
  Dim row, column
  Set row = table.Rows.Add
  row.Value("IOBJNM") = name
  row.Value("IOBJTXT") = caption
  row.Value("POSIT") = position
  row.Value("IOBJPRSNT") = "1"
  If position > 0 Then row.Value("AXIS") = "Y"
  For Each column In Array("PR_COL1_WIDTH", "PR_COL2_WIDTH", "STRT_LVL")
    row.Value(column) = 0
  Next
End Sub

Dim columnsOfTwo, general, dimension, member, attribute, texts, page, row, control
columnsOfTwo = " IOBJPRSNT PR_COL1_FIX PR_COL2_FIX PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL2_WIDTH PR_COL1_ALIGN PR_COL2_ALIGN PR_COL1_HEADER PR_COL2_HEADER"
Set general = NewTable("TITLE PRINT_DIRECTION MAX_PAGES HIDE_ZERO USE_COLORS FRONTPAGE_LAYOUT HEADER_LAYOUT FOOTER_LAYOUT LASTPAGE_LAYOUT MARGIN_TOP MARGIN_BOTTOM MARGIN_LEFT MARGIN_RIGHT SUMPOSIT NOMULTTXT SIGNPRSNT NO_LINES CURUNITPOSITION")
Set dimension = NewTable("IOBJNM IOBJTXT POSIT AXIS PR_PAGE_BREAK PR_BREAK_AREA PR_QUERY_BREAK STRT_LVL HRY_ACTIVE PR_HRY_PRSNT PR_SUM_LAYOUT HIENM VERSION DATETO NOSUMS IS_STRUCTURE" & columnsOfTwo)
Set attribute = NewTable("IOBJNM ATTRINM ATTRITXT POSIT HIDDEN" & columnsOfTwo)
Set member = NewTable("IOBJNM CHAVL CHAVLTXT POSIT HIDDEN PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL1_ALIGN PR_COL1_HEADER PR_COL2_HEADER")

Set page = general.Rows.Add
page.Value("TITLE") = "Orders by region"
page.Value("MARGIN_TOP") = 10
page.Value("MARGIN_BOTTOM") = 10
page.Value("MARGIN_LEFT") = 15
page.Value("MARGIN_RIGHT") = 15
AddCharacteristic dimension, "REGION", "Region", 2
AddCharacteristic dimension, "CUSTOMER", "Customer", 1
AddCharacteristic dimension, "MONTH", "Month", 0

Set texts = NewTable("TARGETID CAPTION")
Set row = texts.Rows.Add
row.Value("TARGETID") = "ID_PRN_GENERAL"
row.Value("CAPTION") = "General settings"

Set control = CreateObject("ORXKMPrintProp.ORXQueryPrnProp")
control.ORXControlTexts texts
If Not control.ORXSetPrnTables(general, dimension, member, attribute) Then
  WScript.Echo "The general table has not exactly one row."
  WScript.Quit 1
End If
control.ORXSetPrintLayout "<top page>", 0, ""
control.ORXSetReadOnly True

' Any of the four properties rewrites all four tables.
For Each row In control.ORXDimTable.Rows
  WScript.Echo row.RowNumber & " " & row.Value("IOBJNM") & ", position " & row.Value("POSIT")
Next
WScript.Echo general.Rows(1).Value("TITLE") & ", top page " & general.Rows(1).Value("FRONTPAGE_LAYOUT")

' A cell that does not convert is told with its place.
On Error Resume Next
dimension.Rows(1).Value("POSIT") = "first"
control.ORXSetPrnTables general, dimension, member, attribute
WScript.Echo "Error " & Err.Number & " of " & Err.Source & ": " & Err.Description
