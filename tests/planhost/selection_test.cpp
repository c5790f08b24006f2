#include "editor/selection.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Selection, PlacesAreInOrder) {
    Selection marks;
    marks.Set({7, 2, 5});
    EXPECT_THAT(marks.Places(), ElementsAre(2, 5, 7));
}

TEST(Selection, TogglingMarksWhatIsNotMarkedAndUnmarksTheRest) {
    Selection marks;
    marks.Set({2, 5});
    marks.Toggle({7, 5});
    EXPECT_THAT(marks.Places(), ElementsAre(2, 7));
    marks.Toggle({});
    EXPECT_THAT(marks.Places(), ElementsAre(2, 7));
    marks.Toggle({2, 7});
    EXPECT_TRUE(marks.IsEmpty());
}

TEST(Selection, ARangeStartsAnywhere) {
    Selection marks;
    marks.Set({1});
    marks.SetRange(4, 3);
    EXPECT_THAT(marks.Places(), ElementsAre(4, 5, 6));
    marks.SetRange(0, 0);
    EXPECT_THAT(marks.Places(), IsEmpty());
}
