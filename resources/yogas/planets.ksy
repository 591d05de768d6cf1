<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of the planets, the Moon and the Sun</nm>
  <au>Kestrav</au>
  <yg>
    <op>1</op>
    <tl>Ruchaka</tl>
    <rl>InHouse,,Mar,ken\Dignity,,Mar,own,exa</rl>
    <in>Courage, a firm body and the will to lead. Gains come by daring and by command, with a temper that wants keeping in hand.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on the five great persons.</cm>
    <vs>Rasi</vs>
    <ch>Pancha mahapurusha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Bhadra</tl>
    <rl>InHouse,,Mer,ken\Dignity,,Mer,own,exa</rl>
    <in>A clear mind, good speech and skill in trade and learning. Respected for judgement among his own people.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on the five great persons.</cm>
    <vs>Rasi</vs>
    <ch>Pancha mahapurusha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Hamsa</tl>
    <rl>InHouse,,Jup,ken\Dignity,,Jup,own,exa</rl>
    <in>An upright, generous character, liked by good people. Learning and fair conduct bring honour.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on the five great persons.</cm>
    <vs>Rasi</vs>
    <ch>Pancha mahapurusha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Malavya</tl>
    <rl>InHouse,,Ven,ken\Dignity,,Ven,own,exa</rl>
    <in>A pleasant appearance, comfort, a good household and a sense for the arts. Desires are mostly met.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on the five great persons.</cm>
    <vs>Rasi</vs>
    <ch>Pancha mahapurusha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shasha</tl>
    <rl>InHouse,,Sat,ken\Dignity,,Sat,own,exa</rl>
    <in>Authority over many, patience and a hard realism. Rises by work and by knowing how to use others.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on the five great persons.</cm>
    <vs>Rasi</vs>
    <ch>Pancha mahapurusha</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sunapha</tl>
    <rl>InHouse,,any.tara,Moo,2\InHouse,,no.tara,Moo,12</rl>
    <in>Wealth earned by own effort, intelligence and a good name.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Anapha</tl>
    <rl>InHouse,,any.tara,Moo,12\InHouse,,no.tara,Moo,2</rl>
    <in>A healthy body, good manners and standing; free from want.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Durudhura</tl>
    <rl>Hemmed,,Moo,tara</rl>
    <in>Comforts, vehicles and helpers; generous and free in the use of what is earned.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kemadruma</tl>
    <rl>InHouse,,no.tara,Moo,12,1,2\InHouse,,no.tara,ken</rl>
    <in>Phases of want, isolation and a restless mind. Support has to be built by oneself.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas); with the exceptions for planets with the Moon and in kendras.</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Kemadruma Bhanga</tl>
    <rl>InHouse,,no.tara,Moo,2,12\InHouse,,any.tara,Moo,4,7,10</rl>
    <in>The Moon stands alone, but planets in kendras from it make good what Kemadruma takes away.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gaja Kesari</tl>
    <rl>InHouse,,Jup,Moo,ken</rl>
    <in>Lasting reputation, good sense and the respect of others; holds his own in any company.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Gaja Kesari of the strict form</tl>
    <rl>(\InHouse,,Jup,ken\OR\InHouse,,Jup,Moo,ken\)\(\Influences,,Ven,Jup\OR\Influences,,Mer,Jup\)\Dignity,!,Jup,deb,ene,gen\Combust,!,Jup</rl>
    <in>Bright, wealthy and gifted, with lasting works to his name.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on various yogas.</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chandra Adhi</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,Moo,6,7,8</rl>
    <in>A leader or counsellor, calm and trusted, who outlasts his rivals.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Chandra Mangala</tl>
    <rl>Related,,Moo,Mar</rl>
    <in>Earning power and drive, now and then with harsh dealings; trade in goods of daily use.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shakata</tl>
    <rl>InHouse,,Jup,Moo,6,8,12\InHouse,!,Jup,ken</rl>
    <in>Fortune rises and falls like a cart wheel; losses are made good again.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vasumat from the Moon</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,Moo,upa</rl>
    <in>Always at home in plenty; wealth grows with the years.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vasumat from the ascendant</tl>
    <rl>InHouse,,all.Mer+Jup+Ven,upa</rl>
    <in>Much wealth, gained step by step.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Adhama</tl>
    <rl>InHouse,,Moo,Sun,ken</rl>
    <in>Moderate means, learning and modesty: the Moon gives little of its own.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Sama</tl>
    <rl>InHouse,,Moo,Sun,pan</rl>
    <in>Middling means, learning and skill.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Varishtha</tl>
    <rl>InHouse,,Moo,Sun,apo</rl>
    <in>Means, learning and skill in good measure.</in>
    <cm>Brihat Jataka, chapter 13 (lunar yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Amala from the Moon</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,Moo,10\InHouse,,no.Sun+Mar+Sat,Moo,10</rl>
    <in>A spotless name and work that helps others; prosperity to the end.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Pushkala</tl>
    <rl>With,,D.Moo,L1\InHouse,,L1,ken\Influences,,any.pla,Asc\DignityMin,,D.Moo,fri</rl>
    <in>Honoured by those in power, well spoken and well off.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Full Moon aspected by Jupiter</tl>
    <rl>Apart,,Moo,Sun,168,192\Aspect,,Jup,Moo</rl>
    <in>Kindness, a good memory and public favour.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Lunar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vesi</tl>
    <rl>InHouse,,any.tara,Sun,2\InHouse,,no.tara,Sun,12</rl>
    <in>Truthful, steady and well remembered; fortune of a middle kind.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on solar yogas.</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Vasi</tl>
    <rl>InHouse,,any.tara,Sun,12\InHouse,,no.tara,Sun,2</rl>
    <in>Able, generous and learned; lives by the eyes of others and does well.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on solar yogas.</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Ubhayachari</tl>
    <rl>Hemmed,,Sun,tara</rl>
    <in>Balanced and enduring, a good speaker who can carry much.</in>
    <cm>Phaladeepika, chapter 6 (yogas); Saravali, chapter on solar yogas.</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shubha Vesi</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,Sun,2\InHouse,,no.Sun+Mar+Sat,Sun,2</rl>
    <in>Eloquent, confident and well provided.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shubha Vasi</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,Sun,12\InHouse,,no.Sun+Mar+Sat,Sun,12</rl>
    <in>Cheerful, giving and liked; spends on good things.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Papa Vesi</tl>
    <rl>InHouse,,any.Mar+Sat,Sun,2\InHouse,,no.Mer+Jup+Ven,Sun,2</rl>
    <in>Hard words and troubled company dim the gifts of the Sun.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Papa Vasi</tl>
    <rl>InHouse,,any.Mar+Sat,Sun,12\InHouse,,no.Mer+Jup+Ven,Sun,12</rl>
    <in>A worried mind, far from home at times; merit goes unseen.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Shubha Ubhayachari</tl>
    <rl>Hemmed,,Sun,Mer+Jup+Ven\InHouse,,no.Mar+Sat,Sun,2,12</rl>
    <in>Bears himself like one of rank, rich and cheerful.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Papa Ubhayachari</tl>
    <rl>Hemmed,,Sun,Mar+Sat</rl>
    <in>Vitality is pressed from both sides; ill health or a poor start are to be overcome.</in>
    <cm>Phaladeepika, chapter 6 (yogas).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Budha Aditya</tl>
    <rl>With,,Mer,Sun</rl>
    <in>Intelligence and skill in work; a good name among the learned.</in>
    <cm>Brihat Jataka, chapter 14 (two planets together).</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Bhaskara</tl>
    <rl>InHouse,,Mer,Sun,2\InHouse,,Moo,Mer,11\InHouse,,Jup,Moo,5,9</rl>
    <in>Brave and learned, versed in many arts, of strong character.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Strong Sun in the tenth</tl>
    <rl>InHouse,,Sun,10\Dignity,,Sun,own,exa</rl>
    <in>High office, firm authority and visible success.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Solar</ch>
  </yg>
</ksy>
