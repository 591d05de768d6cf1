<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of rank, fame and recovery</nm>
  <au>Kestrav</au>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 1 and 4</tl>
    <rl>Related,,L1,L4</rl>
    <in>The native and his home ground support each other: property, vehicles and inner ease.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 1 and 5</tl>
    <rl>Related,,L1,L5</rl>
    <in>Intelligence and merit serve the native himself: recognition by his own gifts.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 1 and 7</tl>
    <rl>Related,,L1,L7</rl>
    <in>Partners and the public lift the native; rise by alliance.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 1 and 9</tl>
    <rl>Related,,L1,L9</rl>
    <in>Fortune stands by the native: help from elders, faith and good luck at the right time.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 1 and 10</tl>
    <rl>Related,,L1,L10</rl>
    <in>The native is one with his work: position and a career that bears his name.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 4 and 5</tl>
    <rl>Related,,L4,L5</rl>
    <in>Learning and property rise together; a seat of one's own by merit.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 4 and 9</tl>
    <rl>Related,,L4,L9</rl>
    <in>Land, home and luck support each other; honours from the place of birth.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 5 and 7</tl>
    <rl>Related,,L5,L7</rl>
    <in>Merit is shared with partners; standing through marriage or the public.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 5 and 10</tl>
    <rl>Related,,L5,L10</rl>
    <in>Intelligence finds its office: advice is asked for and position follows.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Raja Yoga of the lords of 7 and 9</tl>
    <rl>Related,,L7,L9</rl>
    <in>Fortune by partnership, foreign ties and the public.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dharma Karmadhipati</tl>
    <rl>Related,,L9,L10</rl>
    <in>Duty and work are one: the best of the combinations of lords, giving rank, a good cause and lasting deeds.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on raja yogas.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mars as yogakaraka in a good house</tl>
    <rl>InSign,,Asc,Can,Leo\InHouse,,Mar,kentri</rl>
    <in>Mars owns a kendra and a trikona at once and stands well: rise to position by a single strong planet.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on functional nature of planets.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Venus as yogakaraka in a good house</tl>
    <rl>InSign,,Asc,Cap,Aqu\InHouse,,Ven,kentri</rl>
    <in>Venus owns a kendra and a trikona at once and stands well: rise to position by a single strong planet.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on functional nature of planets.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Saturn as yogakaraka in a good house</tl>
    <rl>InSign,,Asc,Tau,Lib\InHouse,,Sat,kentri</rl>
    <in>Saturn owns a kendra and a trikona at once and stands well: rise to position by a single strong planet.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on functional nature of planets.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of kendra and trikona together in a good house</tl>
    <rl>With,,L9,L10\InHouse,,L9,kentri</rl>
    <in>Deeds and fortune meet in a strong house: high position, won openly.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Three planets exalted or in own signs in kendras</tl>
    <rl>InHouse,,min3.exaP-Rah-Ket,ken\OR\InHouse,,min3.ownP-Rah-Ket,ken\OR\InHouse,,min2.exaP-Rah-Ket,ken\InHouse,,any.ownP-Rah-Ket,ken\OR\InHouse,,min2.ownP-Rah-Ket,ken\InHouse,,any.exaP-Rah-Ket,ken</rl>
    <in>One who rules or commands, whatever the birth; strength shows in several fields of life.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Three planets exalted</tl>
    <rl>Dignity,,min3.pla,exa</rl>
    <in>Great rise; three fields of life bear fruit at once.</in>
    <cm>Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Five planets exalted or in own signs</tl>
    <rl>Dignity,,min5.pla,own,exa</rl>
    <in>Rare strength: authority that is hardly questioned.</in>
    <cm>Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vargottama ascendant under four aspects</tl>
    <rl>Vargottama,,Asc\Aspect,,min4.pla-Moo,Asc</rl>
    <in>Of firm character and looked up to; many support the native's cause.</in>
    <cm>Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vargottama Moon under four aspects</tl>
    <rl>Vargottama,,Moo\Aspect,,min4.pla-Moo,Moo</rl>
    <in>Popular and protected; many currents of support meet.</in>
    <cm>Brihat Jataka, chapter 11 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Full Moon in a kendra without malefics</tl>
    <rl>InHouse,,Moo,4,7,10\Apart,,Moo,Sun,150,210\Influences,,no.Mar+Sat+Rah+Ket,Moo</rl>
    <in>A kind ruler of his own sphere, liked by many.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics in all kendras</tl>
    <rl>Occupied,,Moo+Mer+Jup+Ven,3,4,ken\InHouse,,no.Sun+Mar+Sat,ken</rl>
    <in>A protected life in comfort and good repute.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lagnadhi</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,6,7,8\InHouse,,no.Sun+Mar+Sat,6,7,8</rl>
    <in>A teacher of many, esteemed and well off, with peace in the house.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Raja</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mahabhagya of a man</tl>
    <rl>Sex,,male\DayBirth\InSign,,Asc,odd\InSign,,all.lum,odd</rl>
    <in>Great good fortune, a generous hand and fame; a long life of open action.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Mahabhagya of a woman</tl>
    <rl>Sex,,female\DayBirth,,night\InSign,,Asc,even\InSign,,all.lum,even</rl>
    <in>Great good fortune, a good family and lasting regard.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Amala from the ascendant</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,10\InHouse,,no.Sun+Mar+Sat,10</rl>
    <in>Deeds without stain; esteemed by those above and useful to those below.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lakshmi</tl>
    <rl>InHouse,,L9,kentri\Dignity,,L9,own,exa\InHouse,,Ven,kentri\Dignity,,Ven,own,exa</rl>
    <in>Wealth, a noble partner and a good name, kept with grace.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gauri</tl>
    <rl>Dignity,,Moo,own,exa,mul\InHouse,,Moo,kentri\Aspect,,Jup,Moo</rl>
    <in>A pleasant figure, a good family and praise for good conduct.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sarasvati</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,1,2,4,5,7,9,10\DignityMin,,Jup,fri</rl>
    <in>Learned in many subjects, gifted in words and the arts; honoured for knowledge.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shrikantha</tl>
    <rl>InHouse,,L1,kentri\DignityMin,,L1,fri\InHouse,,Sun,kentri\DignityMin,,Sun,fri\InHouse,,Moo,kentri\DignityMin,,Moo,fri</rl>
    <in>Devoted and large-hearted, keeps his vows, helps the good.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shrinatha</tl>
    <rl>InHouse,,L9,kentri\DignityMin,,L9,fri\InHouse,,Ven,kentri\DignityMin,,Ven,fri\InHouse,,Mer,kentri\DignityMin,,Mer,fri</rl>
    <in>Rich, well spoken and witty, with marks of fortune.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Virinchi</tl>
    <rl>InHouse,,L5,kentri\DignityMin,,L5,fri\InHouse,,Jup,kentri\DignityMin,,Jup,fri\InHouse,,Sat,kentri\DignityMin,,Sat,fri</rl>
    <in>Wise and steady in his duties, with good pupils and long life.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shrinatha of the seventh lord</tl>
    <rl>InHouse,,L7,10\Dignity,,L7,exa\With,,L9,L10</rl>
    <in>Devout, agreeable and rich, with a good partner.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kahala</tl>
    <rl>InHouse,,L4,Jup,ken\DignityMin,,L1,fri</rl>
    <in>Bold and active at the head of a small force; stubborn.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Parvata</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,ken\InHouse,,no.Sun+Moo+Mar+Sat+Rah+Ket,6,8</rl>
    <in>Fortunate, giving and eloquent; stands above his town like a hill.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Parvata of the lords</tl>
    <rl>InHouse,,L1,ken\InHouse,,L12,ken\DignityMin,,L1,fri</rl>
    <in>Liberal and steady, in charge of others.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kalpadruma</tl>
    <rl>InHouse,,D.D.L1,kentri\Dignity,,D.D.L1,own,exa</rl>
    <in>Happy in the middle and the last part of life, respected, true to duty.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shankha</tl>
    <rl>InHouse,,L5,L6,ken\DignityMin,,L1,fri</rl>
    <in>Humane, with family and land; knows right from wrong and lives long.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Bheri</tl>
    <rl>InHouse,,L1,Jup,ken\InHouse,,Ven,Jup,ken\DignityMin,,L9,fri</rl>
    <in>Skilled and religious, with good means and a good house.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khadga</tl>
    <rl>Parivartana,,maha,2,9\InHouse,,L1,kentri</rl>
    <in>Versed in the treatises and brave with words; grateful and able.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kalanidhi</tl>
    <rl>InHouse,,Jup,2,5\Influences,,Mer,Jup\Influences,,Ven,Jup</rl>
    <in>A store of arts: learned, well mannered and honoured by those in power.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kusuma</tl>
    <rl>InHouse,,Jup,1\InHouse,,Moo,7\InHouse,,Sun,Moo,8</rl>
    <in>Protects his people and rises to command; fame of a clean kind.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Hari</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,L2,2,8,12</rl>
    <in>Happy, learned and with many children; speaks well.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Hara</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,L7,4,8,9</rl>
    <in>Good to all, overcomes rivals, joyful.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Brahma</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,L1,4,10,11</rl>
    <in>Truthful and learned, gives to good causes, lives in comfort.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Akhanda Samrajya</tl>
    <rl>Owns,,Jup,2,5,11\(\InHouse,,L2,Moo,ken\OR\InHouse,,L9,Moo,ken\OR\InHouse,,L11,Moo,ken\)\InHouse,,Jup,ken</rl>
    <in>Undivided sway over what is his; position that lasts.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shubha Kartari</tl>
    <rl>Hemmed,,Asc,Mer+Jup+Ven\InHouse,,no.Sun+Mar+Sat,2,12</rl>
    <in>Sheltered on both sides: health, means and good company.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Matsya</tl>
    <rl>InHouse,,any.ben,1\InHouse,,any.ben,9\InHouse,,any.mal,5\InHouse,,any.mal,4,8</rl>
    <in>Kind and devout, reads the times well; strong and of good sense.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chapa of the lords</tl>
    <rl>Parivartana,,maha,4,10\Dignity,,L1,exa</rl>
    <in>Skilled and feared, in the service of the great.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chaturmukha</tl>
    <rl>InHouse,,Jup,L9,ken\InHouse,,Ven,L11,ken\InHouse,,L1,ken</rl>
    <in>Learned and victorious, respected on all sides.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Makuta</tl>
    <rl>InHouse,,Jup,L9,9\InHouse,,any.Mer+Ven+Moo,Jup,9\InHouse,,Sat,10</rl>
    <in>A chief among his own, hard at the edges.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chamara of the lord</tl>
    <rl>InHouse,,L1,ken\Dignity,,L1,exa\Aspect,,Jup,L1</rl>
    <in>A person of rank or learning, long-lived and well spoken.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Two benefics in the ascendant</tl>
    <rl>InHouse,,min2.Mer+Jup+Ven,1</rl>
    <in>Good presence, learning and easy favour.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Jupiter guards the ascendant</tl>
    <rl>(\InHouse,,Jup,1\OR\Aspect,,Jup,Asc\)\DignityMin,,Jup,fri</rl>
    <in>A good counsellor stands by: many faults of the chart are softened.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chamara</tl>
    <rl>Influences,,any.ben,B1\InHouse,!,L1,dus\DignityMin,,L1,fri</rl>
    <in>Self-made and looked up to, grows like the waxing Moon; long-lived.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhenu</tl>
    <rl>Influences,,any.ben,B2\InHouse,!,L2,dus\DignityMin,,L2,fri</rl>
    <in>Good food, speech and family; gold and grain.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shaurya</tl>
    <rl>Influences,,any.ben,B3\InHouse,!,L3,dus\DignityMin,,L3,fri</rl>
    <in>Brave, with devoted brothers and sisters; praised deeds.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Jaladhi</tl>
    <rl>Influences,,any.ben,B4\InHouse,!,L4,dus\DignityMin,,L4,fri</rl>
    <in>Land, home, vehicles and friends; digs wells for others.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chhatra of the fifth</tl>
    <rl>Influences,,any.ben,B5\InHouse,!,L5,dus\DignityMin,,L5,fri</rl>
    <in>Happy family, sharp mind, a post of advice.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Astra</tl>
    <rl>Influences,,any.ben,B6\InHouse,!,L6,dus\DignityMin,,L6,fri</rl>
    <in>Bears down opponents; strong, rough and scarred.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kama</tl>
    <rl>Influences,,any.ben,B7\InHouse,!,L7,dus\DignityMin,,L7,fri</rl>
    <in>Faithful love and good children; fortune through partners.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Asura</tl>
    <rl>Influences,,any.ben,B8\InHouse,!,L8,dus\DignityMin,,L8,fri</rl>
    <in>Works in the dark for his own ends; hard tasks and gains by others' losses.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Bhagya</tl>
    <rl>Influences,,any.ben,B9\InHouse,!,L9,dus\DignityMin,,L9,fri</rl>
    <in>Fortune, faith and the marks of rank; a pride of the family.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Khyati</tl>
    <rl>Influences,,any.ben,B10\InHouse,!,L10,dus\DignityMin,,L10,fri</rl>
    <in>Good works seen by all; protects those in his care.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Suparijata</tl>
    <rl>Influences,,any.ben,B11\InHouse,!,L11,dus\DignityMin,,L11,fri</rl>
    <in>Many gains and many festive days; hears good talk.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Musala of the twelfth</tl>
    <rl>Influences,,any.ben,B12\InHouse,!,L12,dus\DignityMin,,L12,fri</rl>
    <in>Wealth is won with difficulty and spent; disgrace is overcome, a good end is hoped for.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Fame and virtue</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Harsha</tl>
    <rl>InHouse,,L6,dus</rl>
    <in>Firm in body, overcomes enemies and is afraid of wrongdoing.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sarala</tl>
    <rl>InHouse,,L8,dus</rl>
    <in>Long-lived, fearless and learned; others' failures make room.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vimala</tl>
    <rl>InHouse,,L12,dus</rl>
    <in>Independent, thrifty and well conducted; content with little.</in>
    <cm>Phaladeepika, chapter 6 (yogas of the twelve houses).</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Viparita of the lords of 6 and 8</tl>
    <rl>Related,,L6,L8\InHouse,,L6,dus\InHouse,,L8,dus</rl>
    <in>Debts and dangers destroy each other; an unlooked-for rise after a crisis.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Viparita of the lords of 6 and 12</tl>
    <rl>Related,,L6,L12\InHouse,,L6,dus\InHouse,,L12,dus</rl>
    <in>Opponents wear themselves out; gain from conflicts of others.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Viparita of the lords of 8 and 12</tl>
    <rl>Related,,L8,L12\InHouse,,L8,dus\InHouse,,L12,dus</rl>
    <in>Loss is ended by loss; quiet strength after hard times.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Viparita of all three lords</tl>
    <rl>InHouse,,all.dusL,dus</rl>
    <in>The lords of trouble keep to their own houses: a rise through the fall of others, sudden and lasting.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Viparita</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of the Sun</tl>
    <rl>Dignity,,Sun,deb\(\InHouse,,D.Sun,ken\OR\InHouse,,D.Sun,Moo,ken\OR\InHouse,,X.Sun,ken\OR\InHouse,,X.Sun,Moo,ken\)</rl>
    <in>Authority denied at first is won later, by service.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of the Moon</tl>
    <rl>Dignity,,Moo,deb\(\InHouse,,D.Moo,ken\OR\InHouse,,D.Moo,Moo,ken\OR\InHouse,,X.Moo,ken\OR\InHouse,,X.Moo,Moo,ken\)</rl>
    <in>An unsettled youth gives way to public favour.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of Mars</tl>
    <rl>Dignity,,Mar,deb\(\InHouse,,D.Mar,ken\OR\InHouse,,X.Mar,ken\OR\InHouse,,X.Mar,Moo,ken\)</rl>
    <in>Weak courage becomes steady strength.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas). The Moon is counted from the ascendant only, since from itself it is always in a kendra.</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of Mercury</tl>
    <rl>Dignity,,Mer,deb\(\InHouse,,D.Mer,ken\OR\InHouse,,D.Mer,Moo,ken\OR\InHouse,,X.Mer,ken\OR\InHouse,,X.Mer,Moo,ken\)</rl>
    <in>Difficult learning turns into a practical mind.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of Jupiter</tl>
    <rl>Dignity,,Jup,deb\(\InHouse,,D.Jup,ken\OR\InHouse,,D.Jup,Moo,ken\OR\InHouse,,X.Jup,ken\)</rl>
    <in>Faith and counsel are found after errors.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas). The Moon is counted from the ascendant only, since from itself it is always in a kendra.</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of Venus</tl>
    <rl>Dignity,,Ven,deb\(\InHouse,,D.Ven,ken\OR\InHouse,,D.Ven,Moo,ken\OR\InHouse,,X.Ven,ken\OR\InHouse,,X.Ven,Moo,ken\)</rl>
    <in>Love and comfort come late and stay.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga of Saturn</tl>
    <rl>Dignity,,Sat,deb\(\InHouse,,D.Sat,ken\OR\InHouse,,D.Sat,Moo,ken\OR\InHouse,,X.Sat,ken\OR\InHouse,,X.Sat,Moo,ken\)</rl>
    <in>Low work becomes the way to command.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga by the lord's aspect</tl>
    <rl>Dignity,,Sun,deb\Aspect,,D.Sun,Sun\OR\Dignity,,Moo,deb\Aspect,,D.Moo,Moo\OR\Dignity,,Mar,deb\Aspect,,D.Mar,Mar\OR\Dignity,,Mer,deb\Aspect,,D.Mer,Mer\OR\Dignity,,Jup,deb\Aspect,,D.Jup,Jup\OR\Dignity,,Ven,deb\Aspect,,D.Ven,Ven\OR\Dignity,,Sat,deb\Aspect,,D.Sat,Sat</rl>
    <in>The lord of the sign looks after his fallen guest: the weak planet gives its results after all.</in>
    <cm>Phaladeepika, chapter 7 (raja yogas).</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Neecha Bhanga in the navamsha</tl>
    <rl>Dignity,,Sun,deb\*-1,Nava,Nava,Sun,,,50,,exa\OR\Dignity,,Moo,deb\*-1,Nava,Nava,Moo,,,50,,exa\OR\Dignity,,Mar,deb\*-1,Nava,Nava,Mar,,,50,,exa\OR\Dignity,,Mer,deb\*-1,Nava,Nava,Mer,,,50,,exa\OR\Dignity,,Jup,deb\*-1,Nava,Nava,Jup,,,50,,exa\OR\Dignity,,Ven,deb\*-1,Nava,Nava,Ven,,,50,,exa\OR\Dignity,,Sat,deb\*-1,Nava,Nava,Sat,,,50,,exa</rl>
    <in>What looks fallen is inwardly exalted; merit shows with time.</in>
    <cm>Traditional.</cm>
    <vs>Rasi,Nava</vs>
    <ch>Neecha bhanga</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Debilitated planet retrograde</tl>
    <rl>Dignity,,any.retP,deb</rl>
    <in>A fallen planet that turns back acts like an exalted one; uneven, surprising results.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Neecha bhanga</ch>
  </yg>
</ksy>
