// Which statement a word begins.
#include "basic/syntax/parser_core.h"

namespace tarnwick::basic {

/// Words that may also be the name of a variable or an object begin a statement only where no "="
/// or touching "." follows; after a blank the "." is that of a member within WITH.
bool Parser::WordBeginsStatement(Word word) const {
  switch (word) {
    case Word::None:
    case Word::Alias:
    case Word::And:
    case Word::As:
    case Word::ByRef:
    case Word::ByVal:
    case Word::Extends:
    case Word::Inv:
    case Word::Is:
    case Word::Lib:
    case Word::Mod:
    case Word::Not:
    case Word::Or:
    case Word::Set:
    case Word::Shl:
    case Word::Shr:
    case Word::Step:
    case Word::Then:
    case Word::To:
    case Word::Until:
    case Word::Xor:
      return false;
    default:
      return !IsSign("=", 1) && !(IsSign(".", 1) && Peek(1).Touches);
  }
}

void Parser::StatementOfWord(Word word, Statements& out) {
  const SourcePlace at = Here();
  switch (word) {
    case Word::Dim:
      return DimStatement(out, tree::DeclareKind::Dim);
    case Word::Redim:
      return DimStatement(out, tree::DeclareKind::Redim);
    case Word::Static:
      return DimStatement(out, tree::DeclareKind::Static);
    case Word::Shared:
      return DimStatement(out, tree::DeclareKind::Shared);
    case Word::DefByte:
      return DefStatement(out, "BYTE");
    case Word::DefDbl:
      return DefStatement(out, "DOUBLE");
    case Word::DefDWord:
      return DefStatement(out, "DWORD");
    case Word::DefInt:
      return DefStatement(out, "INTEGER");
    case Word::DefLng:
      return DefStatement(out, "LONG");
    case Word::DefShort:
      return DefStatement(out, "SHORT");
    case Word::DefSng:
      return DefStatement(out, "SINGLE");
    case Word::DefStr:
      return DefStatement(out, "STRING");
    case Word::DefWord:
      return DefStatement(out, "WORD");
    case Word::Const:
      return ConstStatement(out);
    case Word::Public:
    case Word::Private:
      // What they say about a module has no effect in a program of one text.
      while (WordAhead() == Word::Public || WordAhead() == Word::Private) Take();
      if (!AtStatementEnd()) Statement(out, false);
      return;
    case Word::Sub:
    case Word::SubI:
    case Word::Function:
    case Word::FunctionI:
    case Word::Constructor:
    case Word::Event:
    case Word::Property:
      return RoutineStatement(out);
    case Word::Declare:
      return DeclareStatement(out);
    case Word::Type:
    case Word::Struct:
      return TypeStatement(out);
    case Word::If:
      return IfStatement(out);
    case Word::Select:
      return SelectStatement(out);
    case Word::For:
      return ForStatement(out);
    case Word::While:
      return WhileStatement(out);
    case Word::Do:
      return DoStatement(out);
    case Word::With:
      return WithStatement(out);
    case Word::Create:
      return CreateStatement(out);
    case Word::Let:
      Take();
      return AssignmentOrCall(out);
    case Word::Call:
      return CallStatement(out);
    case Word::Print:
    case Word::LPrint:
      return PrintStatement(out);
    case Word::Input:
      return InputStatement(out);
    case Word::On:
      return OnStatement(out);
    case Word::Goto:
    case Word::Gosub:
      Take();
      return JumpStatement(out, word == Word::Gosub);
    case Word::Exit:
      return ExitStatement(out);
    case Word::Data:
      return DataStatement(out);
    case Word::Read:
      return ReadStatement(out);
    case Word::Restore:
      return RestoreStatement(out);
    case Word::Bind:
      return BindStatement(out);
    case Word::Return:
      Take();
      return Add(out, at, tree::ReturnLine{});
    case Word::End:
      Take();
      return Add(out, at, tree::EndLine{});
    default:
      Error(at, std::string(TextOf(word)) + " is not expected here");
  }
}

}  // namespace tarnwick::basic
