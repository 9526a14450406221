// How each kind of value is read from its line and written to it. The grammar's values become properties here
// and nowhere else.
#pragma once

#include "elements/dress.h"
#include "records/recordreader.h"
#include "records/recordwriter.h"
#include "records/row.h"

namespace veneerer {

/// What is wrong with one value; who knows its place makes a RecordError of it.
struct BadValue {
  QString what;
};

/// The number read last is one that its field can't hold.
struct OutOfRange {};

/// The field's next value, of the type of its property. Throws BadValue when what stands there is no such
/// value, and OutOfRange, as do the functions below.
Value readField(RecordReader& reader, const Field& field);
double readNumber(RecordReader& reader);
/// The next value as it stands: a number, else its text.
StoredValue readStored(RecordReader& reader);

/// Writes the value of the slot that the field is written from; a colour in that of the dress.
void writeField(RecordWriter& out, const Field& field, const Dress& dress);

}  // namespace veneerer
