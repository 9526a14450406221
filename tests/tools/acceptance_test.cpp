// Each tool is played on every Section: it must change something for exactly those that it accepts.
#include <functional>

#include "toolsfixture.h"

namespace veneerer {

class AcceptanceTest : public ToolsTest {
protected:
  /// The Sections from 0 to 191 for which the action changes an element of the canvas or a sample.
  std::string accepted(const std::function<void()>& action) {
    bool reacted = true;
    const Attachment watching = state.board.watch([&](const Change& change) {
      reacted = reacted || &change.element.window() == &form1 || isSample(change.element);
    });
    QStringList sections;
    for (int section = 0; section <= 191; ++section) {
      if (std::exchange(reacted, false)) spread();
      current(section, 1);
      reacted = false;
      action();
      if (reacted) sections.append(QString::number(section));
    }
    return sections.join(u' ').toStdString();
  }

  bool isSample(const Element& element) const {
    const Family* family = element.family();
    return family == &form6.Label5 || family == &form6.Label6 || family == &form6.lvButtons_H5;
  }

  /// A text that the field doesn't hold yet.
  void retype(TextBox& field) { field.setText(QString::number(++typed_)); }
  /// Chooses a row that is neither the first nor the one before.
  void rechoose(RowList& list) { list.select(list.listIndex() == 1 ? 2 : 1); }

private:
  int typed_ = 1000;
};

TEST_F(AcceptanceTest, TextFields) {
  EXPECT_EQ(
      accepted([&] { retype(*form6.Text1); }),
      std::string("1 2 3 4 9 10 12 18 19 24 28 29 34 35 37 43 48 55 56 57 59 60 61 62 64 66 67 69 77 78 79 "
                  "86 90 98 103 104 105 121 122 125 128 134 137 152 172 181"));
  const std::string sized(
      "1 2 3 4 8 9 10 11 12 13 14 16 18 19 20 21 22 23 24 25 26 28 29 30 31 32 33 34 35 36 37 "
      "38 39 40 41 42 43 44 45 46 47 48 49 50 51 52 53 54 55 56 57 58 59 60 61 62 63 64 65 66 "
      "67 68 69 70 71 72 73 74 75 76 77 78 79 80 81 82 83 84 85 86 87 88 89 90 91 92 93 94 95 "
      "96 97 98 99 100 101 102 103 104 105 110 111 112 113 114 115 116 117 118 119 120 121 122 "
      "123 124 125 126 127 128 129 130 131 132 133 134 135 136 137 138 139 140 149 150 151 152 "
      "153 154 155 156 157 158 160 161 162 163 165 170 171 172 173 179 180 181 182 189 190");
  EXPECT_EQ(accepted([&] { retype(form6.Text3[0]); }), sized);
  EXPECT_EQ(accepted([&] { retype(form6.Text3[1]); }), sized);
  EXPECT_EQ(accepted([&] { retype(form6.Text9[0]); }), "101");
  EXPECT_EQ(
      accepted([&] { retype(*form6.Text4); }),
      std::string("11 13 16 21 22 26 30 31 33 36 38 39 44 45 49 50 51 52 53 54 65 68 70 71 72 73 74 75 81 "
                  "83 87 88 91 92 93 95 96 97 99 102 112 113 115 117 126 130 131 132 133 135 136 138 140 "
                  "149 151 153 156 158 160 163 170 171"));
  form6.Option1[1].select();
  EXPECT_EQ(accepted([&] { retype(*form6.Text2); }), "1 2 3 4 5 38 59 60 68");
}

TEST_F(AcceptanceTest, Lists) {
  EXPECT_EQ(
      accepted([&] { rechoose(*form6.Combo1); }),
      std::string("1 2 3 4 8 9 10 12 18 19 24 28 29 34 35 37 40 41 42 43 48 55 56 57 59 60 61 62 63 64 66 "
                  "67 69 77 78 79 80 85 86 90 94 98 103 104 105 116 119 120 121 122 125 128 129 134 137 150 "
                  "152 154 155 172 181"));
  EXPECT_EQ(
      accepted([&] { rechoose(*form6.Combo2); }),
      std::string("1 2 3 4 8 9 10 12 18 19 24 28 29 34 35 37 40 41 42 43 48 55 56 57 59 60 61 62 63 64 66 "
                  "67 69 77 78 79 80 85 86 90 94 98 103 104 105 116 119 120 121 122 125 128 129 134 137 150 "
                  "152 154 155 172 181"));
  EXPECT_EQ(
      accepted([&] { rechoose(*form6.Combo4); }),
      std::string("1 2 3 4 9 18 19 24 28 29 34 35 37 40 41 42 43 55 56 57 59 60 61 62 63 64 66 67 69 77 78 "
                  "79 80 85 86 90 94 98 103 116 120 121 125 128 129 134 137 150 152 154 155 172"));
  EXPECT_EQ(
      accepted([&] { rechoose(*form6.Combo5); }),
      std::string("11 13 16 21 22 26 30 31 33 36 38 39 44 45 49 50 51 52 53 54 65 68 70 71 72 73 74 75 81 "
                  "83 87 88 91 92 93 95 96 97 99 102 112 113 115 117 126 130 131 132 133 135 136 138 140 "
                  "149 158 170 171"));
  EXPECT_EQ(
      accepted([&] { form6.List1->select(form6.List1->listIndex() == 1 ? 0 : 1); }),
      std::string("11 13 16 21 22 26 30 31 33 36 38 39 44 49 50 51 52 53 54 65 68 70 71 72 73 74 75 81 83 "
                  "87 88 91 92 93 95 96 97 99 102 112 113 115 117 126 130 131 132 133 135 136 138 140 149 "
                  "151 153 156 158 160 163 170 171"));
}

TEST_F(AcceptanceTest, GeometryCommands) {
  type(form6.Text3[0], "7");
  type(form6.Text5[0], "7");
  type(form6.Text5[1], "7");
  EXPECT_EQ(
      accepted([&] { state.board.click(*form6.Command5); }),
      std::string("1 2 3 4 8 9 10 18 22 23 24 25 28 29 31 33 34 36 40 41 42 43 44 46 49 50 51 52 53 55 58 "
                  "59 60 64 65 67 69 70 71 72 73 75 78 79 80 82 83 86 87 88 90 91 92 93 94 97 98 100 101 "
                  "105 110 111 112 113 114 116 119 121 125 126 127 129 130 131 132 133 134 135 137 149 152 "
                  "155 158 160 161 162 163 165 170 171 172 179 181"));
  EXPECT_EQ(accepted([&] { state.board.click(*form6.Command12); }), "101");
  // Section 54 is accepted too, but it has no range to shift.
  const std::string shifted(
      "1 3 9 10 16 18 19 21 22 23 24 25 28 29 30 31 33 36 40 43 44 46 49 50 51 52 53 58 59 60 "
      "64 65 67 69 70 71 72 73 75 78 79 82 83 84 86 90 91 92 93 94 97 98 100 101 102 105 110 "
      "111 112 113 114 117 121 129 130 131 132 133 135 137 138 152 155 160 162 163 173 181");
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command6[0]); }), shifted);
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command6[1]); }), shifted);
  const std::string aligned(
      "1 3 4 10 16 18 19 21 22 23 24 25 28 29 30 33 34 36 40 43 44 46 49 50 51 52 53 58 60 64 "
      "67 69 70 71 72 73 75 78 79 83 86 91 92 93 97 101 105 117 121 126 127 130 131 132 133 149 "
      "160 162 163 165 179");
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command8[0]); }), aligned);
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command8[1]); }), aligned);
  const std::string spaced("1 22 31 33 44 46 50 51 52 53 58 83 112 113");
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command9[0]); }), spaced);
  EXPECT_EQ(accepted([&] { state.board.click(form6.Command9[1]); }), spaced);
  EXPECT_EQ(accepted([&] { state.board.click(*form6.Command13); }), "9 41 66 67 98 129 137 152 155 181");
  EXPECT_EQ(accepted([&] { state.board.click(*form6.Command7); }), "1 18 24 28 29 41 42 43 64 69");
}

TEST_F(AcceptanceTest, StylesColoursAndFonts) {
  form6.Combo1->select(5);
  form6.Combo2->select(5);
  EXPECT_EQ(
      accepted([&] { state.board.click(*form6.Command3); }),
      std::string("1 2 3 4 8 9 10 18 24 28 29 34 40 41 42 43 59 60 64 67 69 78 79 80 86 94 98 116 119 121 "
                  "125 129 137 152 155 181"));
  form6.Option1[1].select();
  type(*form6.Text2, "7");
  EXPECT_EQ(
      accepted([&] { state.board.click(form6.Command2[0]); }),
      std::string("1 2 3 4 6 8 9 10 12 13 16 18 19 21 22 23 24 28 29 30 31 33 34 35 36 37 38 40 41 42 43 44 "
                  "46 49 50 51 52 53 55 56 59 60 64 65 66 67 69 70 71 72 73 74 75 78 79 80 83 86 87 88 90 "
                  "91 92 93 94 97 98 102 105 112 113 117 119 121 125 126 129 130 131 132 133 134 135 137 "
                  "149 152 155 156 158 160 163 170 171"));
  // Number 7 is reserved and names no element.
  EXPECT_EQ(
      accepted([&] { state.board.click(*form6.Picture2); }),
      std::string("1 2 3 4 5 6 8 9 10 11 12 13 16 18 19 21 22 23 24 26 28 29 30 31 32 33 34 35 36 37 38 39 "
                  "40 41 42 43 44 45 46 48 49 50 51 52 53 54 55 56 57 59 60 61 62 63 64 65 66 67 68 69 70 "
                  "71 72 73 74 75 77 78 79 80 81 83 85 86 87 88 90 91 92 93 94 95 96 97 98 99 102 103 104 "
                  "105 112 113 115 116 117 119 120 121 122 125 126 128 129 130 131 132 133 134 135 136 137 "
                  "138 139 140 149 150 151 152 153 154 155 156 158 160 163 170 171 172 181 189"));
  type(*form6.Text4, "99");
  EXPECT_EQ(
      accepted([&] { state.board.click(form6.Command1[0]); }),
      std::string("13 16 21 22 30 31 33 36 38 44 49 50 51 52 53 65 83 87 88 91 92 93 102 112 113 117 126 "
                  "130 131 132 133 138 149 153 156 158 160 170 171"));
  form6.List1->select(1);
  EXPECT_EQ(
      accepted([&] { state.board.click(form6.Command4[0]); }),
      std::string("13 16 21 22 30 31 33 36 38 44 49 50 51 52 53 65 83 87 88 91 92 93 102 112 113 117 126 "
                  "130 131 132 133 153 156 158 160 170 171"));
  form6.Combo5->select(1);
  EXPECT_EQ(accepted([&] { state.board.click(*form6.Command11); }), "112 113 117 126 170 171");
  EXPECT_EQ(
      accepted([&] {
        world.dialogs.fonts.enqueue(FontChoice{QStringLiteral("Times"), 40});
        state.board.click(*form6.Command14);
      }),
      std::string("11 13 16 21 22 26 30 31 33 36 38 39 44 49 50 51 52 53 54 65 68 70 71 72 73 74 75 81 83 "
                  "87 88 91 92 93 95 96 97 99 102 112 113 115 117 126 130 131 132 133 135 136 138 140 149 "
                  "151 153 156 158 160 163 170 171"));
}

}  // namespace veneerer
