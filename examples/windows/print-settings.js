// Hands the settings of a query to the control and prints what comes back.
//   cscript print-settings.js
// Both libraries have to be registered: regsvr32 ORXKMPrintProp.dll and regsvr32 PrnPropTables.dll

function newTable(columns) {
  var table = new ActiveXObject("PrnPropTables.Table");
  var names = columns.split(" ");
  for (var i = 0; i < names.length; ++i) table.AddColumn(names[i]);
  return table;
}

// Rows are set by a property that takes an argument.
function addRow(table, cells) {
  var row = table.Rows.Add();
  for (var column in cells) row.Value(column) = cells[column];
  return row;
}

// A number has to stand in every cell that holds one.
function addCharacteristic(table, name, caption, position) {
  addRow(table, {IOBJNM: name, IOBJTXT: caption, POSIT: position, AXIS: position > 0 ? "Y" : "", IOBJPRSNT: "1",
                 PR_COL1_WIDTH: 0, PR_COL2_WIDTH: 0, STRT_LVL: 0});
}

var columnsOfTwo = " IOBJPRSNT PR_COL1_FIX PR_COL2_FIX PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL2_WIDTH" +
                   " PR_COL1_ALIGN PR_COL2_ALIGN PR_COL1_HEADER PR_COL2_HEADER";
var general = newTable("TITLE PRINT_DIRECTION MAX_PAGES HIDE_ZERO USE_COLORS FRONTPAGE_LAYOUT HEADER_LAYOUT" +
                       " FOOTER_LAYOUT LASTPAGE_LAYOUT MARGIN_TOP MARGIN_BOTTOM MARGIN_LEFT MARGIN_RIGHT SUMPOSIT" +
                       " NOMULTTXT SIGNPRSNT NO_LINES CURUNITPOSITION");
var dimension = newTable("IOBJNM IOBJTXT POSIT AXIS PR_PAGE_BREAK PR_BREAK_AREA PR_QUERY_BREAK STRT_LVL HRY_ACTIVE" +
                         " PR_HRY_PRSNT PR_SUM_LAYOUT HIENM VERSION DATETO NOSUMS IS_STRUCTURE" + columnsOfTwo);
var attribute = newTable("IOBJNM ATTRINM ATTRITXT POSIT HIDDEN" + columnsOfTwo);
var member = newTable("IOBJNM CHAVL CHAVLTXT POSIT HIDDEN PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL1_ALIGN PR_COL1_HEADER" +
                      " PR_COL2_HEADER");

addRow(general, {TITLE: "Orders by region", MARGIN_TOP: 10, MARGIN_BOTTOM: 10, MARGIN_LEFT: 15, MARGIN_RIGHT: 15});
addCharacteristic(dimension, "REGION", "Region \u0416", 2);
addCharacteristic(dimension, "CUSTOMER", "Customer", 1);
addCharacteristic(dimension, "MONTH", "Month", 0);

var control = new ActiveXObject("ORXKMPrintProp.ORXQueryPrnProp");
if (!control.ORXSetPrnTables(general, dimension, member, attribute)) {
  WScript.Echo("The general table has not exactly one row.");
  WScript.Quit(1);
}
control.ORXSetPrintLayout("<totals of the region>", 4, "REGION");

// Any of the four properties rewrites all four tables.
for (var rows = new Enumerator(control.ORXDimTable.Rows); !rows.atEnd(); rows.moveNext()) {
  var row = rows.item();
  WScript.Echo(row.RowNumber + " " + row.Value("IOBJNM") + ", position " + row.Value("POSIT") + " " +
               row.Value("PR_SUM_LAYOUT"));
}
WScript.Echo("A letter beyond the code page came back: " + (dimension.Rows(1).Value("IOBJTXT") == "Region \u0416"));

// A cell that does not convert is told with its place.
dimension.Rows(1).Value("POSIT") = "first";
try {
  control.ORXSetPrnTables(general, dimension, member, attribute);
} catch (error) {
  WScript.Echo("Error " + (error.number & 0xFFFF) + ": " + error.message);
}
