#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "dialog/Dialog.h"
#include "tables/Table.h"

namespace ORXKMPrintProp {

class Pages;

/// What the control tells its hosts. A handler runs inside the user's action and may call any public operation of
/// the control, connect and disconnect listeners; it must not end the control's life.
class ORXQueryPrnPropEvents {
 public:
  virtual ~ORXQueryPrnPropEvents() = default;
  /// A layout button was pressed; the answer goes to `ORXSetPrintLayout` with the same two arguments.
  /// @param ButtonID 0 top page, 1 head part, 2 foot part, 3 end page, 4 totals row of one characteristic.
  /// @param CharIObjName that characteristic's technical name for button 4, else empty.
  virtual void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) = 0;
  /// The print order of the characteristics changed.
  virtual void ORXOrderChanged() = 0;
};

/// The control: takes the print settings of one query as four tables, lets the user edit them on a dialog of four
/// pages, and hands the same tables back, rewritten.
///
/// A control belongs to the thread that has made it: every operation, event and call on a table happens there, and it
/// ends there. The model lives in `gPrnProp`, shared by all controls of a thread; it outlives them, until the thread
/// ends or `ReleaseSharedValues`. Controls of different threads share nothing.
///
/// An operation that fails throws RunTimeError: an error of a table object, as it came, or a cell that does not
/// convert.
class ORXQueryPrnProp {
 public:
  /// The dialog opens on the General page, with the captions stored with the form.
  /// @param platform the dialog's typeface and text order; must outlive the control.
  explicit ORXQueryPrnProp(const Platform& platform = Platform::Plain());
  ORXQueryPrnProp(const ORXQueryPrnProp&) = delete;
  ORXQueryPrnProp& operator=(const ORXQueryPrnProp&) = delete;
  ~ORXQueryPrnProp();

  /// Loads new settings in the place of all former ones, empties the general table and fills the pages. The first
  /// load applies the default texts unless texts have been handed in.
  /// @return False when the general table has not exactly one row. The tables are the control's all the same.
  /// @throws RunTimeError (Object) when a table is missing; nothing is changed then. An error while reading
  /// leaves the control with its former tables and the model as far as it was read; one from emptying the general
  /// table or filling the pages leaves it with the new ones. (Table) when a table has loaded other settings from inside
  /// a call, in whichever control: those stay, and the control keeps none of these tables.
  bool ORXSetPrnTables(TableRef GenPropTable, TableRef DimTable, TableRef MemTable, TableRef AtrTable);

  /// Commits the page on top, then rewrites all four tables and gives the one that is asked for: the object that the
  /// host handed in, or none before the first load.
  /// @throws RunTimeError from a table; what was written until then stays. (Table) from inside a call on a table:
  /// nothing is committed or written then; and when a table has loaded other settings from inside a call.
  TableRef ORXGenPropTable();
  TableRef ORXDimTable();
  TableRef ORXMemTable();
  TableRef ORXAtrTable();

  /// Takes the host's texts, by the key in `TARGETID` the text in `CAPTION`. A key without a row keeps its default.
  /// Captions and tooltips change at once; texts that pages fetch, when they are next filled.
  /// @return always False; it does not mean a failure.
  /// @throws RunTimeError (Object) for no table; any error of the table, above all when it has no column
  /// `TARGETID`. The former text table stays in use then, and the texts set so far stay set.
  bool ORXControlTexts(TableRef TextTable);

  /// Stores a layout in the model. It reaches the tables when they are read next.
  /// @param FBLayout an opaque text of the host; empty takes the layout away.
  /// @param ButtonID as in `ORXPrintLayoutGet`; numbers of any type count by their value, an empty one as 0.
  /// @param CharIObjName for button 4 the characteristic, by its exact technical name; the first one that bears it
  /// gets the layout, and to find none is not an error. Not looked at for the other buttons.
  /// @return always empty.
  /// @throws RunTimeError (Index) for any other number, and before this control's first load; (Type) for a
  /// `ButtonID` that is not a number.
  Variant ORXSetPrintLayout(Text FBLayout, const Variant& ButtonID, const Text& CharIObjName);

  /// True: the dialog takes no change. The user can still look at everything, and the layout buttons stay usable.
  /// Starts as False.
  void ORXSetReadOnly(bool ReadOnly);

  /// A listener hears every event from now on, in the order of connecting; it must disconnect before it ends.
  void Connect(ORXQueryPrnPropEvents& listener);
  void Disconnect(ORXQueryPrnPropEvents& listener);

  /// The widgets, for a view that draws them and hands in what the user does.
  Dialog& GetDialog() { return dialog_; }
  bool IsReadOnly() const;

 private:
  template <class Event>
  void Raise(Event event);
  struct Tables {
    TableRef GenPropTable, DimTable, MemTable, AtrTable;
  };

  TableRef ReadBack(const TableRef Tables::*table);

  Tables mTables;  ///< of the last load
  int loads_ = 0;  ///< how many have set them
  bool mTextsDone = false;
  Dialog dialog_;
  std::unique_ptr<Pages> pages_;
  std::vector<ORXQueryPrnPropEvents*> listeners_;
};

}  // namespace ORXKMPrintProp
