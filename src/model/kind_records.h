// The records in the table of kinds: what new ones hold, and what a copy takes over.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/kind_rules.h"

namespace tarnwick::kind_rows {

inline constexpr std::int32_t kFaceColor = 12632256;
inline constexpr std::int32_t kPaperColor = 16777215;

// What new records hold.
inline constexpr std::array kShown{RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
                                   RecordDefault{&ObjectRec::Visible, std::int16_t{1}}};
inline constexpr std::array kNewButton{RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
                                       RecordDefault{&ObjectRec::Visible, std::int16_t{1}},
                                       RecordDefault{&ObjectRec::ImageFile, kNoPicture},
                                       RecordDefault{&ObjectRec::Title, kNoPicture}};
// The third "(None)" of an image goes to the Button of the same index. A form with fewer buttons
// has no place for it.
inline constexpr std::array kNewImage{
    RecordDefault{&ObjectRec::Enabled, std::int16_t{1}},
    RecordDefault{&ObjectRec::Visible, std::int16_t{1}},
    RecordDefault{&ObjectRec::ImageFile, kNoPicture},
    RecordDefault{&ObjectRec::PictureName, kNoPicture},
    RecordDefault{&ObjectRec::Title, kNoPicture, &FormRec::Buttons}};
inline constexpr std::array kNewDialog{
    RecordDefault{&ObjectRec::Filter, std::string_view{"All Files|*.*"}}};
inline constexpr std::array kNewFrame{RecordDefault{&FormRec::TfTop, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfLeft, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfWidth, std::int16_t{105}},
                                      RecordDefault{&FormRec::TfHeight, std::int16_t{105}},
                                      RecordDefault{&FormRec::TfTransparency, std::int16_t{60}},
                                      RecordDefault{&FormRec::TfAlign, std::int16_t{5}},
                                      RecordDefault{&FormRec::TfCursor, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfTranspColor, std::int16_t{0}},
                                      RecordDefault{&FormRec::TfString, std::string_view{}}};
inline constexpr std::array kNewViewer{
    RecordDefault{&HtmlViewerRec::Navigate, kNoPicture},
    RecordDefault{&HtmlViewerRec::Left, std::string_view{"0"}},
    RecordDefault{&HtmlViewerRec::Top, std::string_view{"0"}},
    RecordDefault{&HtmlViewerRec::Width, std::string_view{"Form.ClientWidth"}},
    RecordDefault{&HtmlViewerRec::Height, std::string_view{"Form.ClientHeight"}}};
inline constexpr std::array kNewSocket{
    RecordDefault{&WinSockRec::Family, std::string_view{"AF_INET "}},
    RecordDefault{&WinSockRec::Protocol, std::string_view{"IPPROTO_IP"}},
    RecordDefault{&WinSockRec::Type, std::string_view{"SOCK_STREAM"}},
    RecordDefault{&WinSockRec::WMessage, std::string_view{"0"}}};
inline constexpr std::array kNewPopUp{RecordDefault{&PopUpItemRec::AutoPopUp, std::int16_t{1}},
                                      RecordDefault{&PopUpItemRec::PopUpMenu, NameOfForm{}}};

// What a copy takes over from its source's record.
inline constexpr std::array kCopiedButton{
    RecordField{&ObjectRec::Enabled},   RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::ImageFile}, RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::FontColor}, RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedLabel{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Cursor}, RecordField{&ObjectRec::Icon}};
inline constexpr std::array kCopiedImage{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::ImageFile}, RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedCheckBox{
    RecordField{&ObjectRec::Visible}, RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Cursor}, RecordField{&ObjectRec::Checked}};
inline constexpr std::array kCopiedOption{RecordField{&ObjectRec::Visible},
                                          RecordField{&ObjectRec::Enabled},
                                          RecordField{&ObjectRec::Cursor}};
inline constexpr std::array kCopiedTextBox{RecordField{&ObjectRec::Visible},
                                           RecordField{&ObjectRec::Enabled},
                                           RecordField{&ObjectRec::ReadOnly}};
inline constexpr std::array kCopiedRichTextBox{
    RecordField{&ObjectRec::Enabled},    RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::ReadOnly},   RecordField{&ObjectRec::HideScrollBars},
    RecordField{&ObjectRec::ScrollBars}, RecordField{&ObjectRec::Icon}};
inline constexpr std::array kCopiedListBox{
    RecordField{&ObjectRec::Visible},    RecordField{&ObjectRec::Enabled},
    RecordField{&ObjectRec::Columns},    RecordField{&ObjectRec::Cursor},
    RecordField{&ObjectRec::InitialDir}, RecordField{&ObjectRec::MultiSelect},
    RecordField{&ObjectRec::Sorted},     RecordField{&ObjectRec::Items}};
inline constexpr std::array kCopiedComboBox{
    RecordField{&ObjectRec::Enabled}, RecordField{&ObjectRec::Visible},
    RecordField{&ObjectRec::Items}, RecordField{&ObjectRec::Sorted},
    RecordField{&ObjectRec::Cursor}};
inline constexpr std::array kCopiedTime{RecordField{&ObjectRec::Enabled},
                                        RecordField{&ObjectRec::Interval}};
inline constexpr std::array kCopiedDialog{
    RecordField{&ObjectRec::FileName}, RecordField{&ObjectRec::Filter},
    RecordField{&ObjectRec::InitialDir}, RecordField{&ObjectRec::Title}};
inline constexpr std::array kCopiedViewer{RecordField{&HtmlViewerRec::Navigate}};
inline constexpr std::array kCopiedPopUp{RecordField{&PopUpItemRec::Alignment},
                                         RecordField{&PopUpItemRec::AutoPopUp}};

}  // namespace tarnwick::kind_rows
