TYPE Account
PRIVATE:
  Sum AS INTEGER
  SUB Hide
  END SUB
END TYPE
DIM a AS Account
a.Sum = 4
a.Hide
