CREATE TABLE cash_accounts (
  id integer PRIMARY KEY AUTOINCREMENT,
  name text,
  account text,
  groupID integer,
  type text,
  taxID integer,
  note text,
  frameID integer,
  active boolean
);

CREATE TABLE cash_accounts_frame (
  id integer PRIMARY KEY AUTOINCREMENT,
  name text,
  description text
);

CREATE TABLE cash_accounts_groups (
  id integer PRIMARY KEY AUTOINCREMENT,
  name text,
  type text
);

CREATE TABLE cash_book (
  id integer PRIMARY KEY AUTOINCREMENT,
  name text,
  account text,
  opening_balance double,
  opening_balance_date date,
  active boolean,
  UNIQUE (account)
);

CREATE TABLE cash_journal (
  id integer PRIMARY KEY AUTOINCREMENT,
  vdate date,
  type text,
  input text,
  output text,
  amount double,
  tax text,
  category text,
  salesnumber text,
  note text,
  cashbookID integer,
  bdate datetime,
  account text
);

CREATE TABLE cash_tax (
  id integer PRIMARY KEY AUTOINCREMENT,
  name text,
  value text,
  percent double,
  type text,
  account text,
  active boolean
);

CREATE TABLE core_company (
  id integer PRIMARY KEY AUTOINCREMENT,
  company text,
  department text,
  firstname text,
  lastname text,
  street text,
  zipcode text,
  city text,
  countryID integer,
  state text,
  phone text,
  fax text,
  email text,
  website text,
  ustid text,
  taxnumber text,
  text1 text,
  text2 text,
  account_frame text,
  clientnumber text,
  consultant_name text,
  consultant_number text
);
