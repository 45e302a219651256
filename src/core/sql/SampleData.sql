INSERT INTO core_company (id, company, account_frame) VALUES ('1', 'Demo', 'SKR-03');
INSERT INTO cash_book (ID, name, account, opening_balance, opening_balance_date) VALUES ('1', 'Kasse', '1000', '88.90', '{year}-01-01');
INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,salesnumber,note,cashbookID,bdate,account) VALUES ( 1,'{year}-01-07','E','149.99',NULL,149.99,'3','Erlöse 19% USt','11','Warenverkauf',1,'2015-05-20 17:14:27','8400' );
INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,salesnumber,note,cashbookID,bdate,account) VALUES ( 2,'{year}-01-15','E','100.00',NULL,100.0,'0','Privateinlagen','','',1,'2015-05-20 17:15:09','1890' );
INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,salesnumber,note,cashbookID,bdate,account) VALUES ( 3,'{year}-01-14','A',NULL,'66.45',66.45,'9','KFZ-Kosten','','Tanken',1,'2015-05-20 17:15:30','4530' );
INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,salesnumber,note,cashbookID,bdate,account) VALUES ( 4,'{year}-01-14','E','12.90',NULL,12.9,'3','Erlöse 19% USt','12','Warenverkauf',1,'2015-05-20 17:16:26','8400' );
INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,salesnumber,note,cashbookID,bdate,account) VALUES ( 5,'{year}-01-12','A',NULL,'4.50',4.5,'8','Zeitschriften, Bücher','','',1,'2015-05-20 17:18:11','4940' );
