// The checker's state and its functions; each group of functions is a file of its own.
#pragma once

#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "basic/check/class_catalog.h"
#include "basic/check/program.h"
#include "basic/check/similar_name.h"
#include "basic/check/symbol_table.h"
#include "basic/semantics.h"
#include "basic/syntax/tolerances.h"
#include "basic/syntax/tree.h"
#include "text/code_page.h"

namespace tarnwick::basic {

template <class Value>
using FoldedMap = std::unordered_map<std::string_view, Value, FoldedHash, FoldedEqual>;

/// The symbols of one procedure, which are few.
using LocalSymbols = std::unordered_map<NameId, Symbol>;

/// What the checker knows of a TYPE beside its `RecordType`.
struct TypeFacts {
  const tree::TypeBlock* Source = nullptr;
  FoldedMap<std::uint32_t> Fields;
  FoldedMap<ProcedureId> Members;  ///< SUB and FUNCTION
  FoldedMap<ProcedureId> Setters;  ///< field with PROPERTY SET → routine
  FoldedMap<ProcedureId> Events;   ///< own EVENT routines of the base class
  FoldedMap<bool> Private;         ///< names that only the members of the type may use
  bool DottedNames = false;        ///< a field's name holds dots
};

/// The procedure being checked.
struct RoutineScope {
  ProcedureId Id = kMainProcedure;
  LocalSymbols Names;
  FoldedMap<LabelId> Labels;
  std::vector<tree::ExitKind> Loops;
  std::optional<RecordId> This;  ///< in a member of a TYPE: that of local 0
  bool InConstructor = false;
  NameId Function = NameId::None;  ///< its own name; None outside functions
};

/// An object whose members are reached by a leading dot, and in CREATE by their bare name.
struct Surrounding {
  const Expression* Object;
  bool Create;
};

class Checker {
 public:
  Checker(tree::SyntaxTree tree, const ClassCatalog& classes, bool strict, Messages& messages)
      : tree_(std::move(tree)),
        classes_(classes),
        messages_(messages),
        tolerant_(tree_.Generated && !strict) {}
  Program Run();

 private:
  using Statements = std::vector<const Statement*>;
  using Expr = const Expression*;

  // --- Making nodes ------------------------------------------------------------------------------
  template <class T>
  Expr Make(Type type, SourcePlace at, T node) {
    return program_.Memory.Make<ExpressionSorts::Of<T>>(
        ExpressionSorts::Made({{}, type, at}, std::move(node)));
  }
  template <class T>
  void Add(Statements& out, SourcePlace at, T node) {
    out.push_back(program_.Memory.Make<StatementSorts::Of<T>>(
        StatementSorts::Made({{}, at}, std::move(node))));
  }
  template <class T>
  std::span<const T> List(const std::vector<T>& items) {
    return program_.Memory.List(items);
  }
  /// The values from one on, which are taken off `values_`.
  ExpressionList TakeValues(std::size_t first) {
    const ExpressionList list = program_.Memory.List(std::span<const Expr>(values_).subspan(first));
    values_.resize(first);
    return list;
  }
  std::string_view Keep(std::string_view text) { return program_.Memory.Text(text); }
  Expr Whole(std::int64_t value, SourcePlace at) {
    return Make(kWholeType, at, WholeConstant{value});
  }
  Expr Real(double value, SourcePlace at) { return Make(kRealType, at, RealConstant{value}); }
  Expr Text(std::string_view value, SourcePlace at) {
    return Make(kTextType, at, TextConstant{value});
  }
  /// What stands for an expression that is faulty: of no type, so that nothing more is said of it.
  Expr Faulty(SourcePlace at) { return Make(kNoType, at, NothingConstant{}); }
  [[nodiscard]] static bool IsFaulty(Expr value) {
    return value->Kind == kNoType && value->Is<NothingConstant>();
  }
  Procedure& Current() { return program_.Procedures[static_cast<std::size_t>(frame_->Id)]; }

  // --- Faults (names.cpp) ------------------------------------------------------------------------
  void Error(SourcePlace at, std::string text, std::string remedy = {}) {
    messages_.Error(at, std::move(text), std::move(remedy));
  }
  Expr Fail(SourcePlace at, std::string text, std::string remedy = {}) {
    Error(at, std::move(text), std::move(remedy));
    return Faulty(at);
  }
  void Note(SourcePlace at, std::string text, std::string remedy = {}) {
    messages_.Note(at, std::move(text), std::move(remedy));
  }
  /// True, with the row's note, where irregular lines of generated text are accepted.
  bool Tolerate(Tolerance which, SourcePlace at);
  [[nodiscard]] std::string SimilarTo(std::string_view name) const;

  // --- Names (names.cpp) -------------------------------------------------------------------------
  [[nodiscard]] NameId IdOf(std::string_view name) const { return tree_.Names->Of(name); }
  /// What a name means in the procedure alone; null for nothing of its own.
  [[nodiscard]] const Symbol* FindLocal(NameId name) const {
    if (frame_->Names.empty()) return nullptr;  // as at the top level
    const auto found = frame_->Names.find(name);
    return found == frame_->Names.end() ? nullptr : &found->second;
  }
  /// What a name means here: that of the procedure first. Null for none.
  [[nodiscard]] const Symbol* Find(NameId name) const {
    const Symbol* const local = FindLocal(name);
    return local != nullptr ? local : globals_.Find(name);
  }
  [[nodiscard]] const Symbol* Find(const tree::Name& name) const { return Find(name.Id); }
  /// True inside a function for its own name, unless a variable hides it.
  [[nodiscard]] bool IsOwnResult(const Symbol* local, NameId name) const {
    return local == nullptr && name == frame_->Function && name != NameId::None;
  }
  [[nodiscard]] std::optional<ProcedureId> FindProcedure(NameId name) const;
  [[nodiscard]] std::optional<ProcedureId> FindProcedure(std::string_view name) const {
    return FindProcedure(IdOf(name));
  }
  Expr OfSymbol(const Symbol& symbol, SourcePlace at);
  Expr SlotOf(const Symbol& symbol, SourcePlace at);
  /// A variable for a name that is not declared; an error where names must be declared.
  Expr Undeclared(std::string_view name, SourcePlace at);
  std::uint32_t NewGlobal(std::string_view name, Type type, SourcePlace at);
  std::uint32_t NewLocal(std::string_view name, Type type, SourcePlace at);
  Expr Temporary(Type type, SourcePlace at);
  /// The node with the indexes in it worked out by statements in front, so that it can be used
  /// twice.
  const tree::Node* Settled(const tree::Node* node, Statements& out);
  [[nodiscard]] bool IsCallable(std::string_view name) const;

  // --- Declarations (heads.cpp, types.cpp, declarations.cpp) -------------------------------------
  void CollectTypes(tree::StatementList statements);
  void CollectHeads(tree::StatementList statements, bool in_routine);
  void CollectHead(const tree::StatementNode& statement, bool in_routine);
  void CollectBlocks(const tree::StatementNode& statement, bool in_routine);
  void CollectProcedure(const tree::Routine& routine, SourcePlace at);
  void CollectDll(const tree::DeclareLine& line, SourcePlace at);
  void CollectData(const tree::DataLine& line);
  void CollectGlobal(const tree::Declarator& name);
  void CollectConstant(const tree::ConstDeclaration& line, SourcePlace at);
  void MarkReferences();
  ProcedureId NewProcedure(const tree::Routine& routine, std::string_view name, SourcePlace at,
                           std::optional<RecordId> owner);
  void FillType(RecordId id);
  void CollectMembers(RecordId id);
  void CheckMembers(RecordId id);
  void ConstructorStart(RecordId id, Statements& out);
  Type TypeOf(const tree::TypeName& as, std::string_view name, bool is_array);
  std::optional<Type> TypeNamed(std::string_view name) const;
  static std::optional<Storage> StorageOfSuffix(std::string_view name);
  void Declare(const tree::Declaration& line, SourcePlace at, Statements& out);
  void DeclareOne(tree::DeclareKind kind, const tree::Declarator& name, Statements& out);
  const Symbol* DeclareLocal(const tree::Declarator& name, bool is_static);
  bool Redeclared(const Symbol& old, Type type, const tree::Declarator& name);
  void MakeValue(Expr variable, const tree::Declarator& name, bool keeps, bool once,
                 Statements& out);
  void StartValue(Expr variable, const tree::Declarator& name, Statements& out);
  void CheckConst(const tree::ConstDeclaration& line, SourcePlace at, Statements& out);

  // --- Expressions (expressions.cpp, operators.cpp) ----------------------------------------------
  /// The value of an expression; never null, of kind None only with an error.
  Expr Value(const tree::Node* node);
  Expr NameValue(const tree::Name& name, SourcePlace at);
  Expr ApplyValue(const tree::Apply& apply, SourcePlace at);
  Expr SubscriptValue(const tree::Subscript& subscript, SourcePlace at);
  Expr BinaryValue(const tree::Binary& binary, SourcePlace at);
  Expr UnaryValue(const tree::Unary& unary, SourcePlace at);
  Expr Combine(tree::Operator op, Expr left, Expr right, SourcePlace at);
  Expr Compare(BinaryOperator op, Expr left, Expr right, SourcePlace at);
  Expr Operation(BinaryOperator op, Type type, Expr left, Expr right, SourcePlace at);
  Expr FoldWhole(BinaryOperator op, std::int64_t a, std::int64_t b, SourcePlace at);
  Expr FoldReal(BinaryOperator op, double a, double b, SourcePlace at);
  /// A location of any type; null, with an error, for everything else.
  Expr Location(const tree::Node* node);
  Expr Element(Expr array, tree::NodeList indexes, SourcePlace at);
  /// The expression as another kind of value, folded where it is constant. An error where no value
  /// of that kind can be made of it.
  Expr As(Expr value, ValueKind kind);
  Expr WholeValue(const tree::Node* node) { return As(Value(node), ValueKind::Whole); }
  Expr Condition(const tree::Node* node);
  /// Fits a value to what a variable of that type stores; a note when a number meets a text.
  Expr Fit(Expr value, Type type, bool quiet);

  // --- Calls (calls.cpp, built_ins.cpp) ----------------------------------------------------------
  /// The call of a name with arguments; null when the name is nothing that can be called.
  Expr CallOf(const tree::Name& name, tree::NodeList arguments, SourcePlace at, bool as_statement);
  Expr CallProcedure(ProcedureId id, tree::NodeList arguments, SourcePlace at, Expr record);
  Expr CallDll(std::uint32_t entry, tree::NodeList arguments, SourcePlace at);
  Expr CallPointer(tree::NodeList arguments, SourcePlace at);
  Argument ArgumentFor(const Variable& parameter, const tree::Node* node, SourcePlace at);
  Argument PlainArgument(const tree::Node* node, SourcePlace at);
  Expr CallBuiltIn(std::string_view name, tree::NodeList arguments, SourcePlace at);
  Expr CallNative(const FunctionInfo& info, tree::NodeList arguments, SourcePlace at);
  Expr CallIntrinsic(FunctionId id, tree::NodeList arguments, SourcePlace at);
  Expr ChoiceOf(tree::NodeList arguments, SourcePlace at);
  Expr BoundOf(bool upper, tree::NodeList arguments, SourcePlace at);
  Expr SizeOfNode(const tree::Node* node, SourcePlace at);
  Expr FoundFileOf(std::string_view member, SourcePlace at);
  bool IntrinsicStatement(FunctionId id, tree::NodeList arguments, SourcePlace at, Statements& out);
  void StepOf(const tree::Node* target, const tree::Node* amount, bool up, SourcePlace at,
              Statements& out);

  // --- Objects (members.cpp, objects.cpp) --------------------------------------------------------
  /// What a member access means.
  struct MemberUse {
    Expr Object = nullptr;  ///< of the member of a class
    const MemberFacts* Facts = nullptr;
    Expr Field = nullptr;                ///< a location
    std::optional<ProcedureId> Routine;  ///< a member of a TYPE
    std::optional<ProcedureId> Setter;   ///< its PROPERTY SET
    Expr Record = nullptr;               ///< of the two above
    bool Failed = false;                 ///< an error has been reported
    bool LacksMember = false;            ///< the class has no such member; not reported yet
    ClassId Class{};
  };
  MemberUse MemberOf(const tree::MemberAccess& access, SourcePlace at);
  MemberUse MemberOfValue(Expr owner, std::string_view name, SourcePlace at);
  MemberUse MemberOfRecord(Expr record, std::string_view name, SourcePlace at);
  MemberUse MemberOfObject(Expr object, std::string_view name);
  /// "Class.Member", for messages.
  [[nodiscard]] std::string WrittenAs(const MemberUse& use) const;
  void LacksMember(const MemberUse& use, std::string_view name, SourcePlace at);
  Expr UseValue(const MemberUse& use, tree::NodeList arguments, bool brackets,
                std::string_view name, SourcePlace at, bool as_statement);
  Expr CallMethod(const MemberUse& use, tree::NodeList arguments, SourcePlace at);
  std::vector<Argument> MemberArguments(const MemberFacts& facts, tree::NodeList arguments,
                                        SourcePlace at);
  Expr OwnerOf(const tree::Node* target, SourcePlace at);
  /// The object of an expression: that of a record that extends a class, too. Null for others.
  Expr ObjectOf(Expr value);
  Expr This(SourcePlace at);
  /// The use of a bare name as a member of what stands around it; nothing when it is none.
  std::optional<MemberUse> Implied(std::string_view name, SourcePlace at);

  // --- Statements (statements.cpp, assignments.cpp, blocks.cpp) ----------------------------------
  Block CheckBlock(tree::StatementList statements);
  void CheckAll(tree::StatementList statements, Statements& out);
  void CheckStatement(const tree::StatementNode& statement, Statements& out);
  struct Dispatch;
  void CheckRoutine(const tree::Routine& routine, SourcePlace at);
  void CheckBody(const tree::Routine& routine, ProcedureId id, std::optional<RecordId> owner);
  void CollectLabels(tree::StatementList statements);
  LabelId LabelOf(std::string_view name, SourcePlace at);

  void CheckAssignment(const tree::Assignment& line, SourcePlace at, Statements& out);
  void Store(Expr target, Expr value, SourcePlace at, Statements& out);
  void AssignMember(const MemberUse& use, tree::NodeList indexes, const tree::Node* value,
                    std::string_view name, SourcePlace at, Statements& out);
  void SetPropertyOf(const MemberUse& use, tree::NodeList indexes, const tree::Node* value,
                     SourcePlace at, Statements& out);
  void Hook(const MemberUse& use, const tree::Node* value, SourcePlace at, Statements& out);
  bool UnboundPicture(const MemberFacts& facts, const tree::Node* value);
  void CheckCall(const tree::CallLine& line, SourcePlace at, Statements& out);
  bool FrameRest(std::string_view name, bool assigned, SourcePlace at, Statements& out);

  void CheckIf(const tree::IfBlock& block, SourcePlace at, Statements& out);
  void CheckSelect(const tree::SelectBlock& block, SourcePlace at, Statements& out);
  void CheckFor(const tree::ForBlock& block, SourcePlace at, Statements& out);
  void CheckLoop(const tree::LoopBlock& block, SourcePlace at, Statements& out);
  void CheckExit(const tree::ExitLine& line, SourcePlace at, Statements& out);
  void CheckWith(const tree::WithBlock& block, SourcePlace at, Statements& out);
  void CheckCreate(const tree::CreateBlock& block, SourcePlace at, Statements& out);
  void CheckPrint(const tree::PrintLine& line, SourcePlace at, Statements& out);
  void CheckInput(const tree::InputLine& line, SourcePlace at, Statements& out);
  void CheckLabel(const tree::Label& line, SourcePlace at, Statements& out);
  ExpressionList Targets(tree::NodeList nodes);

  tree::SyntaxTree tree_;
  const ClassCatalog& classes_;
  Messages& messages_;
  Program program_;
  bool tolerant_;
  bool must_declare_ = false;                     ///< $TYPECHECK ON
  Storage default_storage_ = kUndeclaredStorage;  ///< $OPTION DIM
  NameId found_file_ = IdOf("FILEREC");
  SymbolTable globals_;
  FoldedMap<RecordId> type_names_;
  std::vector<TypeFacts> types_;  ///< by RecordId
  FoldedMap<std::uint32_t> data_labels_;
  std::pmr::monotonic_buffer_resource memory_;  ///< of the table of routines
  std::pmr::unordered_map<const tree::Routine*, ProcedureId> routines_{&memory_};
  std::unordered_map<const tree::ConstDeclaration*, Expr> late_constants_;
  std::vector<bool> declared_only_;  ///< by procedure: a DECLARE without its SUB
  RoutineScope main_;
  RoutineScope* frame_ = &main_;
  std::vector<Surrounding> around_;
  std::vector<Expr> values_;  ///< arguments and indexes of the expressions being checked
};

}  // namespace tarnwick::basic
