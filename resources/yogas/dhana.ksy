<?xml version="1.0" encoding="UTF-8"?>
<ksy>
  <ver>1</ver>
  <nm>Yogas of wealth</nm>
  <au>Kestrav</au>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 1 and 2</tl>
    <rl>Related,,L1,L2</rl>
    <in>Means are earned by one's own effort and kept.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 1 and 11</tl>
    <rl>Related,,L1,L11</rl>
    <in>Effort brings gain; many sources of income.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 2 and 5</tl>
    <rl>Related,,L2,L5</rl>
    <in>Wealth by intelligence, speculation or children.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 2 and 9</tl>
    <rl>Related,,L2,L9</rl>
    <in>Inherited or lucky wealth; gains by good conduct.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 2 and 11</tl>
    <rl>Related,,L2,L11</rl>
    <in>Income turns into savings: the plain mark of wealth.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 5 and 9</tl>
    <rl>Related,,L5,L9</rl>
    <in>Merit and fortune together: wealth with a good name.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 5 and 11</tl>
    <rl>Related,,L5,L11</rl>
    <in>Gains by skill and foresight.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Dhana Yoga of the lords of 9 and 11</tl>
    <rl>Related,,L9,L11</rl>
    <in>Fortune brings regular gain, with help from elders.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by the Sun in its own ascendant</tl>
    <rl>InHouse,,Sun,1\InSign,,Sun,Leo\Influences,,Mar,Sun\Influences,,Jup,Sun</rl>
    <in>Wealth by position and by land.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by the Moon in its own ascendant</tl>
    <rl>InHouse,,Moo,1\InSign,,Moo,Can\Influences,,Mer,Moo\Influences,,Jup,Moo</rl>
    <in>Wealth by trade with the public.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Mars in its own ascendant</tl>
    <rl>InHouse,,Mar,1\InSign,,Mar,Ari,Sco\Influences,,Mer,Mar\Influences,,Ven,Mar\Influences,,Sat,Mar</rl>
    <in>Wealth by land, works and many hands.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Mercury in its own ascendant</tl>
    <rl>InHouse,,Mer,1\InSign,,Mer,Gem,Vir\Influences,,Jup,Mer\Influences,,Sat,Mer</rl>
    <in>Wealth by learning and steady trade.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Jupiter in its own ascendant</tl>
    <rl>InHouse,,Jup,1\InSign,,Jup,Sag,Pis\Influences,,Mer,Jup\Influences,,Mar,Jup</rl>
    <in>Wealth by counsel and enterprise.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Venus in its own ascendant</tl>
    <rl>InHouse,,Ven,1\InSign,,Ven,Tau,Lib\Influences,,Mer,Ven\Influences,,Sat,Ven</rl>
    <in>Wealth by the arts, goods of taste and patience.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Saturn in its own ascendant</tl>
    <rl>InHouse,,Sat,1\InSign,,Sat,Cap,Aqu\Influences,,Mar,Sat\Influences,,Jup,Sat</rl>
    <in>Wealth by labour, industry and sound advice.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Venus in the fifth</tl>
    <rl>InHouse,,Ven,5\InSign,,Ven,Tau,Lib\InHouse,,all.Mar,11</rl>
    <in>Wealth by art, pleasure and enterprise.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Mercury in the fifth</tl>
    <rl>InHouse,,Mer,5\InSign,,Mer,Gem,Vir\InHouse,,all.Moo+Mar+Jup,11</rl>
    <in>Wealth by commerce on a large scale.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by the Sun in the fifth</tl>
    <rl>InHouse,,Sun,5\InSign,,Sun,Leo\InHouse,,all.Moo+Jup+Sat,11</rl>
    <in>Wealth by office and the favour of the great.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Saturn in the fifth</tl>
    <rl>InHouse,,Sat,5\InSign,,Sat,Cap,Aqu\InHouse,,all.Sun+Moo,11</rl>
    <in>Wealth by land and old things.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Jupiter in the fifth</tl>
    <rl>InHouse,,Jup,5\InSign,,Jup,Sag,Pis\InHouse,,all.Mer,11</rl>
    <in>Wealth by learning and counsel.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by Mars in the fifth</tl>
    <rl>InHouse,,Mar,5\InSign,,Mar,Ari,Sco\InHouse,,all.Ven,11</rl>
    <in>Wealth by land and works.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Wealth by the Moon in the fifth</tl>
    <rl>InHouse,,Moo,5\InSign,,Moo,Can\InHouse,,all.Sat,11</rl>
    <in>Wealth by the needs of the many.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Strong lords of 2 and 11</tl>
    <rl>Dignity,,L2,own,exa\Dignity,,L11,own,exa</rl>
    <in>Income and savings both rest on firm ground.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lord of 2 in 11 and lord of 11 in a good house</tl>
    <rl>InHouse,,L2,11\InHouse,,L11,kentri</rl>
    <in>Money comes to money.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Jupiter as lord of 2 with Mars</tl>
    <rl>Is,,L2,Jup\With,,Jup,Mar</rl>
    <in>Wealth by initiative under good advice.</in>
    <cm>Brihat Parashara Hora Shastra, chapter on combinations for wealth.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Benefics in 2 and 11</tl>
    <rl>InHouse,,any.Mer+Jup+Ven,2\InHouse,,any.Mer+Jup+Ven,11</rl>
    <in>Clean gains, well spent.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
  <yg>
    <op>1</op>
    <tl>Lords of 9 and 10 in 11</tl>
    <rl>InHouse,,L9,11\InHouse,,L10,11</rl>
    <in>Fortune and work pay in coin.</in>
    <cm>Traditional.</cm>
    <vs>Rasi</vs>
    <ch>Dhana</ch>
  </yg>
</ksy>
