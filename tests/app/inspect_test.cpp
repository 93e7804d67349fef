// The inspection tool: its options, its exit statuses, and what its output must agree on.
#include "RunProgram.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const std::string Root = ZOLTO_SOURCE_ROOT;

QJsonObject Inspect(std::vector<std::string> arguments) {
    const Outcome run = RunProgram(ZOLTO_INSPECT_FILE, arguments);
    EXPECT_EQ(run.status, 0) << run.errors;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(run.output), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

QJsonObject First(const QJsonObject& report) { return report["documents"].toArray()[0].toObject(); }

std::string Put(const QTemporaryDir& folder, const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName().toStdString();
}

// The names in the order of a table.
std::vector<std::string> Names(const QJsonObject& report, const char* table) {
    std::vector<std::string> names;
    for (const QJsonValue record : report["symbols"].toObject()[table].toArray())
        names.push_back(record.toObject()["Ime"].toString().toStdString());
    return names;
}

// One style a byte, by line, without the bytes of the line end.
std::vector<std::vector<int>> StylesOfText(const QJsonObject& document) {
    const std::string text = document["text"].toString().toStdString();
    std::vector<std::vector<int>> lines;
    std::size_t from = 0;
    for (const QJsonValue line : document["styles"].toArray()) {
        std::vector<int> styles;
        for (const QJsonValue run : line.toArray())
            styles.insert(styles.end(), static_cast<std::size_t>(run.toArray()[1].toInt()),
                          run.toArray()[0].toInt());
        const std::size_t end = from + styles.size();
        while (!styles.empty() &&
               (text[from + styles.size() - 1] == '\n' || text[from + styles.size() - 1] == '\r'))
            styles.pop_back();
        from = end;
        lines.push_back(std::move(styles));
    }
    EXPECT_EQ(from, text.size()); // every byte has a style
    return lines;
}

TEST(InspectTest, ASourceIsToldInFull) {
    const QTemporaryDir folder;
    const QByteArray source =
        "Const Most = 3\r\nFunction Twice#(n#, m)\r\n\tReturn n * 2\r\nEnd Function\r\n";
    const std::string path = Put(folder, "a.bb", source);
    const QJsonObject report = Inspect({path});
    const QJsonObject document = First(report);
    EXPECT_EQ(report["documents"].toArray().size(), 1);
    EXPECT_EQ(document["bytes"].toInt(), source.size());
    EXPECT_EQ(document["lines"].toInt(), 5);
    EXPECT_EQ(document["sha256"].toString().toLatin1(),
              QCryptographicHash::hash(source, QCryptographicHash::Sha256).toHex());
    for (const char* list : {"styles", "folds", "indents", "markers"})
        EXPECT_EQ(document[list].toArray().size(), 5) << list;
    EXPECT_FALSE(document.contains("text"));
    EXPECT_EQ(Names(report, "Constants"), std::vector<std::string>{"Most"});
    ASSERT_EQ(Names(report, "Funkcii"), std::vector<std::string>{"Twice"});
    const QJsonObject function = report["symbols"].toObject()["Funkcii"].toArray()[0].toObject();
    EXPECT_EQ(function["line"].toInt(), 1);
    EXPECT_EQ(function["VlezNum"].toInt(), 2);
    EXPECT_EQ(function["Locals"].toArray().size(), 2);
}

TEST(InspectTest, LineEndsChangeNothingButTheirOwnBytes) {
    const QJsonObject lf =
        Inspect({"--parts", "symbols,styles,folds,indents,text", Root + "/tests/data/lf.bb"});
    const QJsonObject crlf =
        Inspect({"--parts", "symbols,styles,folds,indents,text", Root + "/tests/data/crlf.bb"});
    EXPECT_EQ(First(lf)["folds"], First(crlf)["folds"]);
    EXPECT_EQ(First(lf)["indents"], First(crlf)["indents"]);
    EXPECT_EQ(StylesOfText(First(lf)), StylesOfText(First(crlf)));
    EXPECT_GT(StylesOfText(First(lf)).size(), 10u);
    QByteArray symbols = QJsonDocument(lf["symbols"].toObject()).toJson();
    symbols.replace("\"lf.bb\"", "\"crlf.bb\"");
    EXPECT_EQ(symbols.toStdString(), QJsonDocument(crlf["symbols"].toObject()).toJson().toStdString());
    EXPECT_FALSE(Names(lf, "Funkcii").empty());
}

TEST(InspectTest, AProjectTellsAllItsMembers) {
    const QJsonObject report = Inspect({"--parts", "symbols", Root + "/examples/DeepVein/DeepVein.zpf"});
    const QJsonArray documents = report["documents"].toArray();
    ASSERT_EQ(documents.size(), 15);
    EXPECT_EQ(documents[0].toObject()["path"].toString().section('/', -1), "Companies.bb");
    EXPECT_GT(Names(report, "Funkcii").size(), 30u);
    std::vector<std::string> sorted = Names(report, "Types");
    for (std::string& name : sorted) name = QString::fromStdString(name).toUpper().toStdString();
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
    EXPECT_FALSE(documents[0].toObject().contains("styles"));
}

TEST(InspectTest, EveryBytePassesThrough) {
    const QTemporaryDir folder;
    QByteArray source = "; ";
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n') source += static_cast<char>(byte);
    const QString text = First(Inspect({"--parts", "text", Put(folder, "a.bb", source)}))["text"].toString();
    EXPECT_EQ(text.toLatin1(), source);
}

TEST(InspectTest, StrictModeAndSettingsTakeEffect) {
    const QTemporaryDir folder;
    const std::string path = Put(folder, "a.bb", "If 1\r\nundeclared = 2\r\nEndIf\r\n");
    const auto run = [&](std::vector<std::string> options) {
        options.push_back(path);
        return First(Inspect(options));
    };
    const auto style = [](const QJsonObject& document) {
        return document["styles"].toArray()[1].toArray()[0].toArray()[0].toInt();
    };
    EXPECT_EQ(style(run({})), 0);
    EXPECT_EQ(style(run({"--strict"})), 16);
    EXPECT_EQ(run({})["indents"].toArray()[1].toInt(), 0);
    EXPECT_EQ(run({"--set", "OptionsEdit/AutoIndentOnLoad=1"})["indents"].toArray()[1].toInt(), 4);
    const QJsonObject timed = Inspect({"--time", path})["time_us"].toObject();
    for (const char* name : {"load", "parse", "style_all"}) EXPECT_TRUE(timed[name].isDouble()) << name;
}

TEST(InspectTest, WhatCannotBeUsedEndsWith2AndWhatCannotBeOpenedWith3) {
    const QTemporaryDir folder;
    const std::string text = Put(folder, "a.txt", "text");
    const std::string damaged = Put(folder, "a.zpf", "no project");
    const std::string source = Root + "/tests/data/lf.bb";
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {"--nonsense", source},
                                                      {"--parts", "all", source},
                                                      {"--set", "x=1", source},
                                                      {"--set", "Options/x", source},
                                                      {source, source},
                                                      {"--parts"}}) {
        const Outcome run = RunProgram(ZOLTO_INSPECT_FILE, arguments);
        EXPECT_EQ(run.status, 2) << testing::PrintToString(arguments);
        EXPECT_NE(run.errors, "");
        EXPECT_EQ(run.output, "");
    }
    for (const std::string& path :
         {folder.filePath("missing.bb").toStdString(), text, damaged, folder.path().toStdString()}) {
        const Outcome run = RunProgram(ZOLTO_INSPECT_FILE, {path});
        EXPECT_EQ(run.status, 3) << path;
        EXPECT_EQ(run.output, "");
        EXPECT_NE(run.errors, "");
    }
    EXPECT_NE(RunProgram(ZOLTO_INSPECT_FILE, {damaged}).errors.find("Not a valid project file !"),
              std::string::npos);
}

// The symbols without handles and lines of their history; text and folds unchanged. The place of the last
// edit does not matter.
QJsonObject State(const QJsonObject& report) {
    const QJsonObject document = First(report);
    constexpr int PositionMask = 1 << 18;
    QJsonArray markers;
    for (const QJsonValue mask : document["markers"].toArray()) markers.append(mask.toInt() & ~PositionMask);
    return {{"symbols", report["symbols"]},
            {"text", document["text"]},
            {"folds", document["folds"]},
            {"markers", markers},
            {"styles", document["styles"]}};
}

TEST(InspectTest, EditsLeaveWhatAFreshLoadOfTheirTextGives) {
    const QTemporaryDir folder;
    const std::string source = Put(folder, "a.bb", "Global score\r\nLocal total\r\nPrint total\r\n");
    const std::string edits = Put(folder, "edits", R"({"op":"caret","pos":14}
{"op":"type","text":"function sum(n)\n"}
{"op":"caret","pos":9999}
{"op":"type","text":"end function\nscore=2"}
{"op":"newline"}
{"op":"paste","text":"Const Most = 3\r\n.start\r\nGoto start"}
{"op":"backspace"}
{"op":"undo"}
{"op":"caret","pos":0}
{"op":"command","name":"Comment Selection"}
{"op":"undo"}
{"op":"redo"}
{"op":"select","from":0,"to":1}
{"op":"delete"}
{"op":"settle"}
)");
    const QJsonObject edited =
        Inspect({"--parts", "symbols,styles,folds,markers,text", "--time", "--edits", edits, source});
    const QByteArray text = First(edited)["text"].toString().toLatin1();
    EXPECT_EQ(text.toStdString(),
              "Global score\r\nFunction sum(n)\r\n\tLocal total\r\nPrint total\r\nEnd Function\r\n"
              "score=2\r\nConst Most = 3\r\n.start\r\nGoto start");
    EXPECT_EQ(edited["time_us"].toObject()["edits"].toArray().size(), 15);
    const QJsonObject loaded =
        Inspect({"--parts", "symbols,styles,folds,markers,text", Put(folder, "a.bb", text)});
    EXPECT_EQ(QJsonDocument(State(edited)).toJson().toStdString(),
              QJsonDocument(State(loaded)).toJson().toStdString());
}

// A click never comes between a CR and its LF, and neither does a position.
TEST(InspectTest, PositionsAreThoseOfClicksAndFileNamesAreShown) {
    const QTemporaryDir folder;
    const std::string source = Put(folder, "m\xC3\xBC\xC3\x9F.bb", "Global a\r\nGlobal b\r\n");
    const QJsonObject report =
        Inspect({"--parts", "text,symbols", "--edits", Put(folder, "edits", R"({"op":"caret","pos":9}
{"op":"type","text":"1"}
{"op":"select","from":10,"to":19}
{"op":"paste","text":"\r\nGlobal c"}
)"),
                 source});
    EXPECT_EQ(First(report)["text"].toString().toStdString(), "Global a1\r\nGlobal c\r\n");
    EXPECT_EQ(First(report)["path"].toString().toStdString(), source);
}

TEST(InspectTest, EditsEndWithTheLastDocument) {
    const QTemporaryDir folder;
    const std::string edits = Put(folder, "edits", R"({"op":"command","name":"Close File"}
{"op":"type","text":"x"}
)");
    const QJsonObject report = Inspect({"--edits", edits, Put(folder, "a.bb", "Print 1\r\n")});
    EXPECT_TRUE(report["documents"].toArray().isEmpty());
}

TEST(InspectTest, EditsThatAreNoneAreRefused) {
    const QTemporaryDir folder;
    const std::string source = Put(folder, "a.bb", "Print 1\r\n");
    for (const char* line : {"type", R"({"op":"sing"})", R"({"op":"caret"})", R"({"op":"caret","pos":-1})",
                             R"({"op":"type","text":3})", R"({"op":"command","name":"Nothing"})"}) {
        const std::string edits = Put(folder, "edits", QByteArray(line) + "\n");
        const Outcome run = RunProgram(ZOLTO_INSPECT_FILE, {"--edits", edits, source});
        EXPECT_EQ(run.status, 4) << line;
        EXPECT_EQ(run.output, "") << line;
        EXPECT_NE(run.errors.find("line 1"), std::string::npos) << run.errors;
    }
}

}
