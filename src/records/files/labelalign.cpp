// The text alignment of nearly every label: pairs of the label's name and a value.
//
// The names are for a human reader and are never tested: the place counts. Labels that came later are missing
// and have their alignment in their own screen's file, or nowhere. Where a screen's file holds it too, this
// one is read later and wins.
#include "records/recordfiles.h"

namespace veneerer {

namespace {

void aligned(Layout& file, Array<Label>& labels, int first, int last) {
  file.each(labels, first, last, [&](Label& label) {
    const QString name = QStringLiteral("%1 (%2)").arg(label.family()->name()).arg(label.index());
    file.literal(name);
    file.alignment(label);
  });
}

void aligned(Layout& file, Single<Label>& label) {
  file.block();
  file.literal(label.name());
  file.alignment(*label);
}

}  // namespace

Layout labelAlignFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "label_align.ini");
  aligned(file, form1.Label1, 0, 12);
  aligned(file, form1.Label2, 0, 2);
  aligned(file, form1.Label3, 0, 12);
  aligned(file, form1.Label4, 0, 4);
  aligned(file, form1.Label5);
  aligned(file, form1.Label6, 0, 1);
  aligned(file, form1.Label7, 0, 2);
  aligned(file, form1.Label8, 0, 9);
  aligned(file, form1.Label11, 0, 8);
  aligned(file, form1.Label12);
  aligned(file, form1.Label13);
  aligned(file, form1.Label14, 0, 6);
  aligned(file, form1.Label15, 0, 6);
  aligned(file, form1.Label16, 0, 6);
  aligned(file, form1.Label17, 0, 6);
  aligned(file, form1.Label18);
  aligned(file, form1.Label19, 0, 3);
  aligned(file, form1.Label20, 0, 27);
  aligned(file, form1.Label21, 0, 3);
  aligned(file, form1.Label22, 0, 1);
  aligned(file, form1.Label23, 0, 4);
  aligned(file, form1.Label24, 0, 4);
  aligned(file, form1.Label25, 0, 4);
  aligned(file, form1.Label26, 0, 4);
  aligned(file, form1.Label27, 0, 1);
  aligned(file, form1.Label28, 0, 1);
  aligned(file, form1.Label29);
  aligned(file, form1.Label30, 0, 9);
  aligned(file, form1.Label31, 0, 9);
  aligned(file, form1.Label32);
  aligned(file, form1.Label33, 0, 3);
  aligned(file, form1.Label34, 0, 2);
  aligned(file, form1.Label35, 0, 9);
  aligned(file, form1.Label36, 0, 9);
  aligned(file, form1.Label37, 0, 9);
  aligned(file, form1.Label38, 0, 0);
  aligned(file, form1.Label39);
  aligned(file, form1.Label40, 0, 5);
  aligned(file, form1.Label41);
  aligned(file, form1.Label42);
  aligned(file, form1.Label43, 0, 5);
  aligned(file, form1.Label44, 0, 9);
  aligned(file, form1.Label45, 0, 9);
  aligned(file, form1.Label46);
  file.optionalFromHere();
  aligned(file, form1.Label1, 13, 19);
  aligned(file, form1.Label3, 13, 19);
  return file;
}

}  // namespace veneerer
