#include "documents/LogoMetafile.h"
#include "documents/RTFroutines.h"

namespace norlaplan {
namespace {

constexpr const char* kFonts[] = {
    R"({\fonttbl{\f0\froman\fcharset0\fprq2{\*\panose 02020603050405020304}Times New Roman;})",
    R"({\f1\fswiss\fcharset0\fprq2{\*\panose 020b0604020202020204}Arial;})",
    R"({\f2\fmodern\fcharset0\fprq1{\*\panose 02070309020205020404}Courier New;})",
    R"({\f3\froman\fcharset0\fprq2{\*\panose 02040602050305030304}Book ANtiqua;})",
    R"({\f28\fswiss\fcharset0\fprq2{\*\panose 020b0a04020102020204}Arial Black;}})",
};

constexpr const char* kColours =
    R"({\colortbl;\red0\green0\blue0;\red0\green0\blue255;\red0\green255\blue255;\red0\green255\blue0;)"
    R"(\red255\green0\blue255;\red255\green0\blue0;\red255\green255\blue0;\red255\green255\blue255;)"
    R"(\red0\green0\blue128;\red0\green128\blue128;\red0\green128\blue0;\red128\green0\blue128;)"
    R"(\red128\green0\blue0;\red128\green128\blue0;\red128\green128\blue128;\red192\green192\blue192;)"
    R"(\red51\green102\blue255;})";

/// The levels of the standard list numbering, each with what stands around its number.
constexpr const char* kListLevels[] = {
    R"({\*\pnseclvl1\pnucrm\pnstart1\pnindent720\pnhang{\pntxta .}})",
    R"({\*\pnseclvl2\pnucltr\pnstart1\pnindent720\pnhang{\pntxta .}})",
    R"({\*\pnseclvl3\pndec\pnstart1\pnindent720\pnhang{\pntxta .}})",
    R"({\*\pnseclvl4\pnlcltr\pnstart1\pnindent720\pnhang{\pntxta )}})",
    R"({\*\pnseclvl5\pndec\pnstart1\pnindent720\pnhang{\pntxtb (}{\pntxta )}})",
    R"({\*\pnseclvl6\pnlcltr\pnstart1\pnindent720\pnhang{\pntxtb (}{\pntxta )}})",
    R"({\*\pnseclvl7\pnlcrm\pnstart1\pnindent720\pnhang{\pntxtb (}{\pntxta )}})",
    R"({\*\pnseclvl8\pnlcltr\pnstart1\pnindent720\pnhang{\pntxtb (}{\pntxta )}})",
    R"({\*\pnseclvl9\pnlcrm\pnstart1\pnindent720\pnhang{\pntxtb (}{\pntxta )}})",
};

/// The first shape of every document.
constexpr int kPictureId = 1025;

}  // namespace

void RtfDocument::writePicture(int shapeId) {
    append(R"({\pict{\*\picprop\shplid)" + std::to_string(shapeId) +
           R"({\sp{\sn shapeType}{\sv 75}}{\sp{\sn fFlipH}{\sv 0}}{\sp{\sn fFlipV}{\sv 0}})");
    append(
        R"({\sp{\sn fLine}{\sv 0}}}\picscalex23\picscaley23\picw22543\pich7364\picwgoal12780\pichgoal4175\wmetafile8)");
    append(logoMetafileHex() + "}");
}

void RtfDocument::RtfHeader() {
    append(R"({\rtf1\ansi\ansicpg1252\uc1 \deff0\deflang1033\deflangfe1033)");
    for (const char* const font : kFonts)
        append(font);
    append(kColours);
    append(R"({\stylesheet{\widctlpar\adjustright \fs20\cgrid \snext0 Normal;})");
    append(R"({\*\cs10 \additive Default Paragraph Font;}})");
    append(R"(\margl720\margr720\margt936\margb720\widowctrl\ftnbj\aenddoc\formshade)");
    // The footer stands a quarter of an inch from the edge, below the last line of the sheet.
    append(
        R"(\viewkind1\viewscale114\pgbrdrhead\pgbrdrfoot \fet0\sectd \linex0\footery360\endnhere\sectdefaultcl)");
    for (const char* const level : kListLevels)
        append(level);
    append(R"(\pard\plain \qr\widctlpar\adjustright \fs20\cgrid {\lang1024)");
    writePicture(kPictureId);
    append("}");
    append(R"({\f1\lang1024)");
    append(R"(\par }\pard \widctlpar\adjustright {\f1\lang1024)");
    append(R"( }{\lang1024)");
}

}  // namespace norlaplan
