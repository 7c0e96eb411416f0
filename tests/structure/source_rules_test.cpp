#include "structure/source_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace bornika::essai {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> maison = {"src", "simulator"};

std::string Liste(const Manquements& manquements) {
    std::string liste;
    for (const std::string& manquement : manquements)
        liste += manquement + '\n';
    return liste;
}

const Sources& Maison() {
    static const Sources sources = LireSources(BORNIKA_SOURCE_DIR, maison);
    return sources;
}

TEST(Maison, IsReadAndItsIncludesAreFound) {
    ASSERT_TRUE(Maison().contains("src/platform/fault.h"));
    ASSERT_TRUE(Maison().contains("src/shell/main_screen.ui"));
    EXPECT_THAT(Inclusions(Maison(), "src/platform/guard.h"), ElementsAre("src/platform/fault.h"));
    const auto duFormulaire = Inclusions(Maison(), "src/shell/main_screen.ui");
    EXPECT_THAT(duFormulaire, testing::Contains("src/widgets/controls.h"));
}

TEST(Maison, KeepsIncludesRunningDownItsRooms) {
    EXPECT_EQ(Liste(PiecesMelees(Maison())), "");
}

TEST(Maison, HasNoCircleOfIncludes) {
    EXPECT_EQ(Liste(Cercles(Maison())), "");
}

TEST(Maison, NamesEachLibraryInItsPlaceOnly) {
    EXPECT_EQ(Liste(BibliothequesHorsDeLeurPlace(Maison())), "");
}

TEST(Maison, ReadsTheChartLibraryInTheRoomOfThePlotOnly) {
    EXPECT_EQ(Liste(EntrainentLaBibliothequeDuGraphe(Maison())), "");
}

TEST(Maison, OpensNoNamespaceInAHeader) {
    EXPECT_EQ(Liste(EspacesOuverts(Maison())), "");
}

TEST(Maison, HasNoFileBeyondFiveHundredLines) {
    EXPECT_EQ(Liste(FichiersTropLongs(Maison(), 500)), "");
}

TEST(Maison, HasNoTestFileBeyondFiveHundredLines) {
    const Sources essais = LireSources(BORNIKA_SOURCE_DIR, {"tests", "bench"});
    ASSERT_FALSE(essais.empty());
    EXPECT_EQ(Liste(FichiersTropLongs(essais, 500)), "");
}

TEST(PiecesMelees, FindsAnIncludeThatRunsUp) {
    const Sources sources = {{"src/platform/a.h", "#include \"shell/b.h\"\n"},
                             {"src/shell/b.h", "#include \"platform/c.h\"\n"},
                             {"src/platform/c.h", "#include <vector>\n"}};
    EXPECT_THAT(PiecesMelees(sources), ElementsAre("src/platform/a.h leans on src/shell/b.h"));
}

TEST(PiecesMelees, FindsAnIncludeBesides) {
    const Sources sources = {
        {"src/viewer/a.h", "#pragma once\n  #  include <link/station.h>\n"},
        {"src/link/station.h", ""},
        {"simulator/s.cpp", "#include \"link/station.h\"\n#include \"simulator/s.h\"\n"},
        {"simulator/s.h", ""}};
    EXPECT_THAT(PiecesMelees(sources), ElementsAre("simulator/s.cpp leans on src/link/station.h",
                                                   "src/viewer/a.h leans on src/link/station.h"));
}

TEST(PiecesMelees, TellsTheRoomsOfOneFolderApart) {
    const Sources sources = {{"src/chart/model/m.h", "#include \"chart/view/v.h\"\n"},
                             {"src/chart/view/v.h", "#include \"chart/model/n.h\"\n"},
                             {"src/chart/model/n.h", "#include \"recording/r.h\"\n"},
                             {"src/recording/r.h", "#include \"widgets/w.h\"\n"},
                             {"src/widgets/w.h", ""}};
    EXPECT_THAT(PiecesMelees(sources),
                ElementsAre("src/chart/model/m.h leans on src/chart/view/v.h",
                            "src/recording/r.h leans on src/widgets/w.h"));
}

TEST(PiecesMelees, FollowsFormsAndTheirPromotedControls) {
    const Sources sources = {{"src/link/f.ui", "<header>logger/l.h</header>"},
                             {"src/logger/l.h", ""},
                             {"src/shell/a.cpp", "#include \"ui_f.h\"\n"}};
    EXPECT_THAT(PiecesMelees(sources), ElementsAre("src/link/f.ui leans on src/logger/l.h",
                                                   "src/shell/a.cpp leans on src/link/f.ui"));
}

TEST(PiecesMelees, FindsARoomThatNobodyKnows) {
    EXPECT_THAT(PiecesMelees({{"src/misc/a.h", ""}}),
                ElementsAre("src/misc/a.h lies in no known room"));
}

TEST(Cercles, FindsAWayBack) {
    const Sources sources = {{"src/shell/a.h", "#include \"shell/b.h\"\n"},
                             {"src/shell/b.h", "int x;\n#include \"shell/c.h\"\n"},
                             {"src/shell/c.h", "#include \"shell/a.h\"\n"},
                             {"src/shell/d.h", "#include \"shell/a.h\"\n"}};
    EXPECT_THAT(Cercles(sources),
                ElementsAre("src/shell/a.h -> src/shell/b.h -> src/shell/c.h -> src/shell/a.h"));
}

TEST(Cercles, AreNoneWhereTwoWaysMeet) {
    const Sources sources = {{"src/shell/a.h", "#include \"shell/b.h\"\n#include \"shell/c.h\"\n"},
                             {"src/shell/b.h", "#include \"shell/c.h\"\n"},
                             {"src/shell/c.h", ""}};
    EXPECT_THAT(Cercles(sources), IsEmpty());
}

TEST(Bibliotheques, AreFoundOutsideTheirPlace) {
    const Sources sources = {{"src/app/a.cpp", "#include <QMessageBox>\n"},
                             {"src/app/b.cpp", "void f() { QFileDialog::getOpenFileName(); }"},
                             {"src/logger/c.cpp", "#include <unistd.h>\n"},
                             {"src/shell/d.h", "#include <pugixml.hpp>\n"},
                             {"src/chart/model/chart_model.h", "class QCPGraph;\n"},
                             {"src/viewer/e.h", "class QCustomPlot;\n"}};
    EXPECT_THAT(BibliothequesHorsDeLeurPlace(sources),
                ElementsAre("src/app/a.cpp names QMessageBox", "src/app/b.cpp names QMessageBox",
                            "src/chart/model/chart_model.h names qcustomplot.h",
                            "src/logger/c.cpp names unistd.h", "src/shell/d.h names pugixml.hpp",
                            "src/viewer/e.h names qcustomplot.h"));
}

TEST(Bibliotheques, AreAtHomeInTheirPlace) {
    const Sources sources = {{"src/widgets/toolkit_dialogs.cpp", "#include <QMessageBox>\n"},
                             {"src/platform/a.cpp", "#include <sys/stat.h>\n"},
                             {"src/settings/config_store_x.cpp", "pugi::xml_document d;\n"},
                             {"src/chart/model/chart_template.cpp", "pugi::xml_document d;\n"},
                             {"src/chart/view/chart_view_zoom.h", "class QCustomPlot;\n"}};
    EXPECT_THAT(BibliothequesHorsDeLeurPlace(sources), IsEmpty());
}

TEST(Bibliotheques, MayBeSpokenOf) {
    const Sources sources = {
        {"src/app/a.cpp",
         "// no QMessageBox here\n/* nor\n QFileDialog */ auto t = \"QCPGraph\";"}};
    EXPECT_THAT(BibliothequesHorsDeLeurPlace(sources), IsEmpty());
}

TEST(BibliothequeDuGraphe, IsFoundBehindHeadersAndForms) {
    const Sources sources = {
        {"src/app/a.cpp", "#include \"ui_f.h\"\n"},
        {"src/app/b.cpp", "#include \"viewer/light.h\"\n"},
        {"src/viewer/f.ui", "<header>chart/view/v.h</header>"},
        {"src/viewer/light.h", "#include \"chart/view/page.h\"\n"},
        {"src/chart/view/page.h", "// #include <qcustomplot.h>\nclass QCustomPlot;\n"},
        {"src/chart/view/v.h", "#include \"chart/view/zoom.h\"\n"},
        {"src/chart/view/zoom.h", "#include <qcustomplot.h>\n"}};
    EXPECT_THAT(
        EntrainentLaBibliothequeDuGraphe(sources),
        ElementsAre("src/app/a.cpp reads the chart library by way of src/chart/view/zoom.h",
                    "src/viewer/f.ui reads the chart library by way of src/chart/view/zoom.h"));
}

TEST(BibliothequeDuGraphe, BelongsToTheRoomOfThePlot) {
    const Sources sources = {
        {"src/viewer/a.cpp", "#include \"chart/view/v.h\"\n"},
        {"src/viewer/b.cpp", "#include <qcustomplot.h>\n"},
        {"src/chart/view/v.h", "class DessinGraphe;\n"},
        {"src/chart/view/v.cpp", "#include \"chart/view/v.h\"\n#include <qcustomplot.h>\n"}};
    EXPECT_THAT(EntrainentLaBibliothequeDuGraphe(sources),
                ElementsAre("src/viewer/b.cpp reads the chart library by way of src/viewer/b.cpp"));
}

TEST(EspacesOuverts, AreFoundInHeadersAlone) {
    const Sources sources = {{"src/app/a.h", "using namespace std;\n"},
                             {"src/app/b.h", "// using namespace std;\n"},
                             {"src/app/c.cpp", "using namespace std;\n"}};
    EXPECT_THAT(EspacesOuverts(sources), ElementsAre("src/app/a.h opens a namespace"));
}

TEST(FichiersTropLongs, AreCountedInLines) {
    const Sources sources = {{"src/app/a.h", "1\n2\n3\n"}, {"src/app/b.h", "1\n2\n3\n4\n"}};
    EXPECT_THAT(FichiersTropLongs(sources, 3), ElementsAre("src/app/b.h has 4 lines"));
}

TEST(SansCommentaires, KeepsCodeAndLineEnds) {
    EXPECT_EQ(SansCommentaires("a // b\nc"), "a  \nc");
    EXPECT_EQ(SansCommentaires("a /* b\n */ c"), "a \n  c");
    EXPECT_EQ(SansCommentaires("f(\"x\\\"y\", 'z') + 1'000"), "f( ,  ) + 1'000");
    EXPECT_EQ(SansCommentaires("'\"' QMessageBox"), "  QMessageBox");
    EXPECT_EQ(SansCommentaires("R\"(a\" b)\" c"), "  c");
}

}  // namespace
}  // namespace bornika::essai
